#pragma once

#include "base/HouseExport.h"

#include <QtCore/QByteArray>
#include <QtCore/QFile>

namespace ORVTListview {

// A file's new content, written beside it and put in its place in one step:
// whoever reads the file, and whoever finds it after a crash, sees the old
// content or the new one whole. The file behind a link is replaced, not the link.
// Nothing is ever written into the file itself, so a folder that takes no new
// file keeps its files as they are.
class ORVT_HOUSE_EXPORT FileReplacement
{
public:
    enum class Fault {
        None,
        NotAFile,     // a folder, a device, links in a circle
        ReadOnly,     // somebody has taken away the right to write it
        FolderClosed, // no file can be made beside it
        System,       // such as a full disk
    };

    // Writes to a file of a new name, which a killed process leaves.
    explicit FileReplacement(const QString &fileName);

    // Writes to a file of that name. One that is there is cleared: a killed process
    // has left it, since callers of one name keep each other out by a lock.
    FileReplacement(const QString &fileName, const QString &beside);

    ~FileReplacement();                  // gives up what was not committed
    Q_DISABLE_COPY_MOVE(FileReplacement) // owns the file beside

    // Each false: the file is as it was. Owner and rights of the file are kept as
    // far as the system allows.
    bool write(const QByteArray &content);
    bool commit();

    // Why the last call was false, and what the system said of it, if anything.
    Fault fault() const { return m_fault; }
    QString systemText() const { return m_systemText; }

private:
    bool openBeside();
    bool isFileOrFree();
    bool mayReplace();
    bool writeAll(const QByteArray &content);
    bool reachDisk();
    void copyRights();
    bool fail(Fault fault, const QString &systemText = {});

    QString m_fileName;
    QFile m_beside;
    bool m_isWritten = false;
    Fault m_fault = Fault::None;
    QString m_systemText;
};

} // namespace ORVTListview
