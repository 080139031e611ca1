#pragma once

#include <ORVTListview/CoreExport.h>

#include <QtCore/QByteArray>
#include <QtCore/QFile>

namespace ORVTListview {

// A file's new content, written beside it as NAME.new and put in its place in
// one step: whoever reads the file, and whoever finds it after a crash, sees the
// old content or the new one whole. Two replacements of one file must not be
// under way at once; the caller holds a lock.
class ORVT_CORE_EXPORT FileReplacement
{
public:
    explicit FileReplacement(const QString &fileName);
    ~FileReplacement();                  // gives up what was not committed
    Q_DISABLE_COPY_MOVE(FileReplacement) // owns the file beside

    // Each false: the file is as it was. Owner and rights of the file are kept as
    // far as the system allows.
    bool write(const QByteArray &content);
    bool commit();

private:
    bool writeAll(const QByteArray &content);
    bool reachDisk();
    void takeRights();

    QString m_fileName;
    QFile m_beside;
    bool m_isWritten = false;
};

} // namespace ORVTListview
