#pragma once

#include "ActionPage.h"

namespace ORVTListview {

// When a project cannot be opened: the reason, and what can be done.
class OpeningFault : public ActionPage
{
    Q_OBJECT

public:
    explicit OpeningFault(QWidget *parent);

    void show(const QString &fileName, const QString &reason);

    void retranslate() override;

Q_SIGNALS:
    void projectWanted(const QString &fileName);
    void versionBeforeWanted(const QString &fileName);
    void choiceWanted();

private:
    QString m_fileName;
    QString m_reason;
    QPushButton *m_other;
    QPushButton *m_again;
    QPushButton *m_former;
};

} // namespace ORVTListview
