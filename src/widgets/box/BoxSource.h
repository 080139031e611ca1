#pragma once

class QTextDocument;

namespace ORVTListview {

class BoxFormats;
class RtfSink;

// Hands a range of a document, in document positions, to a sink. Every format is
// stated in full.
void readBox(const QTextDocument &document, const BoxFormats &formats, int from, int to,
             RtfSink &sink);

} // namespace ORVTListview
