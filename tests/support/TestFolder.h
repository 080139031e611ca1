#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace ORVTListview {

// A folder of a test's own, gone at its end.
class TestFolder
{
public:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QStringList names(const QString &folder = {}) const
    {
        return QDir(path(folder))
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                       QDir::Name);
    }

    // Empty for a file that is not there.
    QByteArray content(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void write(const QString &name, const QByteArray &content) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("The test folder cannot be written");
    }

private:
    QTemporaryDir m_folder;
};

} // namespace ORVTListview
