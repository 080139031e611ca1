#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

namespace ORVTListview::Testing {

// Converts documents with the real program, under a profile of its own. Everything
// it writes goes with it.
class LibreOffice
{
public:
    static bool isInstalled();

    // The conversion of each document to a format ("fodt", "txt:Text:UTF8"), in
    // order; empty where there is none.
    QStringList convert(const QStringList &rtf, const QString &format);

private:
    QTemporaryDir m_folder;
};

// What a flat OpenDocument text shows, line by line as RtfDump does. Only styles
// stated in the document itself count.
QString dumpOfFlatDocument(const QString &xml);

} // namespace ORVTListview::Testing
