#pragma once

#include "base/HouseExport.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace ORVTListview {

// These write 7-bit characters that read back as what they are given, whatever
// stands behind them. NUL is dropped.
void appendRtfText(QString &out, QStringView text);
void appendRtfFontName(QString &out, const QString &name);

// A document that holds other characters, in 7-bit characters as a file has it.
ORVT_HOUSE_EXPORT QByteArray sevenBitRtf(QStringView rtf);

void appendRtfNumber(QString &out, qint64 number);

// An entry of the colour table, its ";" included.
QString rtfColourEntry(qint32 red, qint32 green, qint32 blue);

} // namespace ORVTListview
