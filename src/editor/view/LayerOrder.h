#pragma once

// What is painted above what, the lowest first.
namespace ORVTListview::LayerOrder {

enum { currentLine, wordUses, found, pairs, indentGuides, blanks, problems, folds, liveValues };

} // namespace ORVTListview::LayerOrder
