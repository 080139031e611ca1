#pragma once

#include <QtCore/QObject>

class QTimer;

namespace ORVTListview {

class HoverTips;
class ReportList;

// Has the card of the chosen entry shown beside the open word list, once the choice has
// rested.
class WordListTips final : public QObject
{
    Q_OBJECT

public:
    WordListTips(ReportList &list, HoverTips &tips);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isOpen() const;
    void noteChoice();
    void tell();

    ReportList &m_list;
    HoverTips &m_tips;
    QTimer *const m_rest; // the list's, named ChoiceRest
};

} // namespace ORVTListview
