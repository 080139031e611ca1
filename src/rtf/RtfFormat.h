#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/Colour.h>

#include <QtCore/QString>
#include <QtCore/QStringView>

namespace ORVTListview {

// Character settings of a piece of rich text. What a document does not state is
// left to whoever shows the text.
struct RtfFormat
{
    static constexpr Colour automatic = -1;

    QString fontName = {}; // empty: not stated
    qint32 halfPoints = 0; // font size; 0: not stated
    Colour colour = automatic;
    Colour backColour = automatic;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;

    friend bool operator==(const RtfFormat &, const RtfFormat &) = default;
};

// Receives a document's text in order. Text never holds a line end.
class ORVT_HOUSE_EXPORT RtfSink
{
public:
    virtual ~RtfSink();
    virtual void text(QStringView text, const RtfFormat &format) = 0;
    virtual void lineEnd() = 0;
};

} // namespace ORVTListview
