#include "base/FilePlace.h"

#include "base/SystemFiles.h"

#include <QtCore/QFileInfo>

#include <filesystem>
#include <system_error>

namespace ORVTListview {

// QFileInfo::canonicalFilePath() is empty where a link leads to no file, and
// symLinkTarget() takes "folder/.." out of a name though folder may be a link.
QString behindLinks(const QString &fileName)
{
    constexpr int longestChain = 40; // the system follows no more
    std::filesystem::path place = QFileInfo(fileName).filesystemFilePath();
    for (int i = 0; i < longestChain; ++i) {
        const std::filesystem::path target = SystemFiles::linkTarget(place);
        if (target.empty())
            return i == 0 ? fileName : QFileInfo(place).filePath();
        place = place.parent_path() / target;
    }
    return fileName;
}

// By the folders: the file itself may be replaced by another between two looks.
bool isOneFile(const QString &one, const QString &other)
{
    const QFileInfo first(behindLinks(one));
    const QFileInfo second(behindLinks(other));
    std::error_code missing;
    return SystemFiles::isOneName(first.fileName(), second.fileName()) &&
           std::filesystem::equivalent(QFileInfo(first.path()).filesystemFilePath(),
                                       QFileInfo(second.path()).filesystemFilePath(), missing);
}

} // namespace ORVTListview
