#pragma once

#include <QtCore/QPointer>

namespace ORVTListview {

class PopupWordList;

// Which of a thread's word lists is open; one at most is.
struct OpenWordList
{
    QPointer<PopupWordList> list;
};

} // namespace ORVTListview
