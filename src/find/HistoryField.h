#pragma once

class QComboBox;
class QString;

namespace ORVTListview {

class SearchHistory;

// A field for what is searched for or what it is replaced by, with what was before.
namespace HistoryField {

// Whatever a history holds, the field keeps its width, and nothing is put into it
// that was not typed or chosen.
void make(QComboBox &field);

// Shows the text without choosing an entry.
void show(QComboBox &field, const QString &text);

// Fills the list of the field.
void list(QComboBox &field, const SearchHistory &history);

// The text becomes an entry if it is none yet.
void remember(QComboBox &field, SearchHistory &history);

} // namespace HistoryField
} // namespace ORVTListview
