#pragma once

#include <QtCore/QList>
#include <QtWidgets/QWidget>

class QComboBox;
class QToolButton;

namespace ORVTListview {

class SearchHistory;

// The row of a find bar for what is put in the place of what is found.
class ReplaceRow final : public QWidget
{
    Q_OBJECT

public:
    // The history outlives the row.
    ReplaceRow(QWidget &bar, SearchHistory &history);

    QList<QWidget *> controls() const;

    // The text stays; the list is the history of now.
    void ask();

    QString text() const;
    void remember();

    void setMayReplace(bool mayReplace);
    void showTexts();

Q_SIGNALS:
    void replaceAsked();
    void replaceAllAsked();

private:
    SearchHistory &m_history;
    QComboBox *m_field;
    QToolButton *m_replace;
    QToolButton *m_replaceAll;
};

} // namespace ORVTListview
