#pragma once

#include <QtCore/QObject>

class QTimer;

namespace ORVTListview {

class HoverTips;
class PopupWordList;
class ReportList;

// Has the card of the chosen entry shown beside the open word list, once the choice has
// rested. Whatever shows the words, the chosen one is selected in the control's list.
class WordListTips final : public QObject
{
    Q_OBJECT

public:
    WordListTips(ReportList &list, PopupWordList &words, HoverTips &tips);

private:
    void noteChoice();
    void noteClosed();
    void tell();

    ReportList &m_list;
    PopupWordList &m_words;
    HoverTips &m_tips;
    QTimer *const m_rest; // the list's, named ChoiceRest
};

} // namespace ORVTListview
