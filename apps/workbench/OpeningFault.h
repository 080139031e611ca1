#pragma once

#include <QtWidgets/QWidget>

class QLabel;
class QPushButton;

namespace ORVTListview {

// What stands in the window when a project cannot be opened: the reason, and what can be
// done.
class OpeningFault : public QWidget
{
    Q_OBJECT

public:
    explicit OpeningFault(QWidget *parent);

    void show(const QString &fileName, const QString &reason);

    // After a change of language.
    void retranslate();

Q_SIGNALS:
    void projectWanted(const QString &fileName);
    void versionBeforeWanted(const QString &fileName);
    void choiceWanted();

private:
    QString m_fileName;
    QString m_reason;
    QLabel *m_title;
    QLabel *m_text;
    QPushButton *m_again;
    QPushButton *m_other;
    QPushButton *m_former;
};

} // namespace ORVTListview
