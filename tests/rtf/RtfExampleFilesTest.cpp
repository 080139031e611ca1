// Every rtf/*.rtf beside this file reads as the .txt beside it says. Where it does
// not, what was read is written to a .new file, to be looked at and promoted.

#include "rtf/RtfDump.h"

#include "support/QtPrinters.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace ORVTListview::Testing {
namespace {

QDir examples()
{
    return QDir(QStringLiteral(ORVT_RTF_EXAMPLES));
}

std::vector<std::string> exampleNames()
{
    std::vector<std::string> names;
    for (const QString &file : examples().entryList({u"*.rtf"_s}, QDir::Files, QDir::Name))
        names.push_back(file.chopped(4).toStdString());
    return names;
}

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void keep(const QString &path, const QString &text)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(text.toUtf8());
}

class RtfExampleFiles : public testing::TestWithParam<std::string>
{
};

TEST_P(RtfExampleFiles, readAsExpected)
{
    const QString path = examples().filePath(QString::fromStdString(GetParam()));
    const QString read = dump(contents(path + u".rtf"_s));
    const QString expected = contents(path + u".txt"_s);
    EXPECT_EQ(read, expected);
    if (read != expected)
        keep(path + u".txt.new"_s, read);
}

INSTANTIATE_TEST_SUITE_P(Rtf, RtfExampleFiles, testing::ValuesIn(exampleNames()),
                         [](const auto &each) {
                             std::string name = each.param;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

} // namespace
} // namespace ORVTListview::Testing
