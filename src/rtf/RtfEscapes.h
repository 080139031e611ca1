#pragma once

#include <QtCore/QString>

namespace ORVTListview {

// These write 7-bit characters that read back as what they are given, whatever
// stands behind them. NUL is dropped.
void appendRtfText(QString &out, QStringView text);
void appendRtfFontName(QString &out, const QString &name);

void appendRtfNumber(QString &out, qint64 number);

} // namespace ORVTListview
