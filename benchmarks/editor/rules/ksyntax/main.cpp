// KSyntaxHighlighting at work on a program, for colouring_peers.cpp:
//
//   ksyntax FOLDER FILE
//
// FOLDER holds a folder "syntax" with the definition "Controller program". First
// writes how many tokens of each format the file has, one JSON object in a line.
// Then takes all tokens once more for each line read, and answers each with the
// nanoseconds that this took.

#include <KSyntaxHighlighting/AbstractHighlighter>
#include <KSyntaxHighlighting/Definition>
#include <KSyntaxHighlighting/Format>
#include <KSyntaxHighlighting/Repository>
#include <KSyntaxHighlighting/State>

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QMap>
#include <QtCore/QVector>

#include <chrono>
#include <cstdio>
#include <iostream>
#include <string>

namespace {

class Tokens : public KSyntaxHighlighting::AbstractHighlighter
{
public:
    void walk(const QVector<QStringView> &lines)
    {
        KSyntaxHighlighting::State state;
        for (const QStringView line : lines)
            state = highlightLine(line, state);
    }

    qint64 count() const { return m_count; }

protected:
    void applyFormat(int, int, const KSyntaxHighlighting::Format &) override { ++m_count; }

private:
    qint64 m_count = 0;
};

class CountedTokens final : public Tokens
{
public:
    QMap<QString, int> counts;

protected:
    void applyFormat(int, int, const KSyntaxHighlighting::Format &format) override
    {
        ++counts[format.name()];
    }
};

QString readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return QString::fromLatin1(file.readAll());
}

QVector<QStringView> linesOf(QStringView text)
{
    QVector<QStringView> lines;
    int from = 0;
    while (from <= static_cast<int>(text.size())) {
        auto end = static_cast<int>(text.indexOf(QLatin1String("\r\n"), from));
        if (end < 0)
            end = static_cast<int>(text.size());
        lines.append(text.mid(from, end - from));
        from = end + 2;
    }
    return lines;
}

void printCounts(const KSyntaxHighlighting::Definition &definition,
                 const QVector<QStringView> &lines)
{
    CountedTokens tokens;
    tokens.setDefinition(definition);
    tokens.walk(lines);
    QJsonObject object;
    for (auto it = tokens.counts.cbegin(); it != tokens.counts.cend(); ++it)
        object.insert(it.key(), it.value());
    std::puts(QJsonDocument(object).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    KSyntaxHighlighting::Repository repository;
    repository.addCustomSearchPath(QString::fromLocal8Bit(argv[1]));
    const auto definition = repository.definitionForName(QStringLiteral("Controller program"));
    if (!definition.isValid())
        return 2;
    const QString text = readFile(QString::fromLocal8Bit(argv[2]));
    const QVector<QStringView> lines = linesOf(text);
    printCounts(definition, lines);

    Tokens tokens;
    tokens.setDefinition(definition);
    using Clock = std::chrono::steady_clock;
    for (std::string request; std::getline(std::cin, request);) {
        const Clock::time_point start = Clock::now();
        tokens.walk(lines);
        const std::chrono::nanoseconds taken = Clock::now() - start;
        std::printf("%lld\n", static_cast<long long>(taken.count()));
        std::fflush(stdout);
    }
    return tokens.count() > 0 ? 0 : 1;
}
