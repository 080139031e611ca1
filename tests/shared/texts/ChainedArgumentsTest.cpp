// Texts are put into a text by one call of arg.

#include "support/SourceTexts.h"

#include "support/QtPrinters.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ChainedArguments, AreFound)
{
    const QString source = uR"cpp(
        a = u"%1 (%2"_s.arg(name).arg(2);     // b.arg(1).arg(2)
        c = text.arg(f(name, ")"), QString())
                .arg(g(1));
        d = u"%1 %2"_s.arg(name).trimmed().arg(3);
    )cpp"_s;
    EXPECT_EQ(chainedArguments(source).size(), 3);
}

TEST(ChainedArguments, OneCallIsNone)
{
    const QString source = uR"cpp(
        a = u"%1 (%2"_s.arg(name, QString::number(2)) + u"%1"_s.arg(1);
        c = text.arg(u"%1"_s.arg(name), other).trimmed();
    )cpp"_s;
    EXPECT_EQ(chainedArguments(source), QStringList());
}

TEST(ChainedArguments, AreNowhere)
{
    const QString root = u"" ORVT_SOURCE_DIR "/"_s;
    int files = 0;
    for (const QString &folder :
         {u"src"_s, u"apps"_s, u"designer"_s, u"examples"_s, u"benchmarks"_s}) {
        QDirIterator found(root + folder, {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (found.hasNext()) {
            QFile file(found.next());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
            EXPECT_EQ(chainedArguments(QString::fromUtf8(file.readAll())), QStringList())
                << file.fileName().toStdString();
            ++files;
        }
    }
    EXPECT_GT(files, 300);
}
