#pragma once

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

// A folder of a test's own for a project and its program.
class ProjectFolder
{
public:
    QString path(const QString &name) const { return m_dir.filePath(name); }

    QString write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return file.fileName();
    }

private:
    QTemporaryDir m_dir;
};
