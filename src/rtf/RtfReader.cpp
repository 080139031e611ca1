#include "rtf/RtfReader.h"

#include "rtf/RtfInterpreter.h"

namespace ORVTListview {

bool isRtf(QStringView text)
{
    return text.startsWith(QLatin1StringView("{\\rtf"), Qt::CaseInsensitive);
}

void readRtf(QStringView rtf, RtfSink &sink)
{
    RtfInterpreter(rtf, sink).read();
}

} // namespace ORVTListview
