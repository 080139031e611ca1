// ColourText beside other programs' colouring of the same text. They differ in
// what they give: Scintilla styles, KSyntaxHighlighting tokens, `highlight` and
// `pygmentize` RTF as ColourText does.

#include "editor/rules/syntax_definition.h"
#include "support/peer_process.h"
#include "support/points.h"
#include "support/program.h"
#include "support/report.h"
#include "support/scintilla.h"

#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "editor/rules/language/WordClass.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

// The program as a file, and beside it what the peers need.
class Files
{
public:
    explicit Files(const Program &program)
    {
        QDir(m_folder.path()).mkdir(u"syntax"_s);
        write(u"syntax/program.xml"_s, syntaxDefinition());
        write(u"program.bas"_s, program.text);
        write(u"empty.bas"_s, QString());
    }

    QString folder() const { return m_folder.path(); }
    QString program() const { return m_folder.filePath(u"program.bas"_s); }
    QString empty() const { return m_folder.filePath(u"empty.bas"_s); }

private:
    void write(const QString &name, const QString &text) const
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toLatin1()) != text.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
    }

    QTemporaryDir m_folder;
};

QStringList highlightCommand(const QString &file)
{
    return {u"highlight"_s, u"-O"_s, u"rtf"_s, u"-S"_s, u"vb"_s, u"-i"_s, file};
}

QStringList pygmentizeCommand(const QString &file)
{
    return {u"pygmentize"_s, u"-f"_s, u"rtf"_s, u"-l"_s, u"vbnet"_s, file};
}

// How often RTF has the word IF in bold.
qsizetype boldIfs(const QByteArray &rtf)
{
    return QString::fromLatin1(rtf).count(u"\\b IF"_s, Qt::CaseInsensitive);
}

qsizetype names(const Program &program)
{
    return program.words[ConstantColour] + program.words[InputColour] +
           program.words[OutputColour] + program.words[VariableColour] + program.words[NviColour];
}

void checkScintilla(const Program &program)
{
    const Scintilla editor(program.text);
    editor.restyle();
    const Scintilla::StyledWords styled = editor.styledWords();
    checkEqual(u"Scintilla styles all comments"_s, styled.comments, program.words[CommentColour]);
    checkEqual(u"Scintilla styles all reserved words"_s, styled.reservedWords,
               program.words[ReservedWordColour] - program.operators);
    checkEqual(u"Scintilla styles all names"_s, styled.names, names(program));
}

void checkKSyntax(const Program &program, const Files &files)
{
    PeerProcess ksyntax({QStringLiteral(ORVT_KSYNTAX), files.folder(), files.program()});
    const QJsonObject tokens = QJsonDocument::fromJson(ksyntax.readLine()).object();
    const auto count = [&tokens](const QString &format) { return tokens.value(format).toInt(); };
    checkEqual(u"KSyntaxHighlighting finds all comments"_s, count(u"Comment"_s),
               program.words[CommentColour]);
    checkEqual(u"KSyntaxHighlighting finds all reserved words"_s, count(u"Reserved word"_s),
               program.words[ReservedWordColour] - program.operators);
    checkEqual(u"KSyntaxHighlighting finds all names"_s,
               count(u"Constant"_s) + count(u"Input"_s) + count(u"Output"_s) +
                   count(u"Variable"_s) + count(u"Nvi"_s),
               names(program));
}

void checkWork()
{
    const Program program = makeProgram(usualProgram);
    const Files files(program);
    checkScintilla(program);
    checkKSyntax(program, files);
    checkEqual(u"highlight colours every IF"_s,
               boldIfs(outputOf(highlightCommand(files.program()))), program.ifs);
    checkEqual(u"pygmentize colours every IF"_s,
               boldIfs(outputOf(pygmentizeCommand(files.program()))), program.ifs);
}

class PeerRows
{
public:
    PeerRows()
        : m_program(makeProgram(usualProgram))
        , m_files(m_program)
    {
        m_points.teachThread();
    }

    void scintilla() const
    {
        const Scintilla editor(m_program.text);
        print(u"Scintilla, styles only"_s, 21, [&] { return timed([&] { editor.restyle(); }); });
    }

    void ksyntax() const
    {
        PeerProcess process({QStringLiteral(ORVT_KSYNTAX), m_files.folder(), m_files.program()});
        process.readLine();
        print(u"KSyntaxHighlighting, tokens only"_s, 11, [&] {
            process.writeLine("again");
            return process.readLine().toDouble();
        });
    }

    // Whole processes; what they take for an empty file is not counted.
    void highlight() const
    {
        print(u"highlight -O rtf"_s, 5, [&] {
            return runTime(highlightCommand(m_files.program())) -
                   runTime(highlightCommand(m_files.empty()));
        });
    }

    void pygmentize() const
    {
        print(u"pygmentize -f rtf"_s, 5, [&] {
            return runTime(pygmentizeCommand(m_files.program())) -
                   runTime(pygmentizeCommand(m_files.empty()));
        });
    }

private:
    void print(const QString &peer, int repetitions, const Contender &peers) const
    {
        const ColourEngine engine = threadColouring();
        const auto colour = [&] {
            return timed([&] { keep(ColourText(engine, m_program.text, QString(), false)); });
        };
        const qsizetype characters = m_program.text.size();
        const Sides sides = sideBySide(repetitions, colour, peers);
        printRow({.name = u"ColourText beside "_s + peer.section(u',', 0, 0),
                  .ours = medianOf(u"ColourText"_s, sides.ours, characters),
                  .peers = medianOf(peer, sides.peers, characters),
                  .unit = Unit::CharactersPerSecond});
    }

    Program m_program;
    Files m_files;
    Points m_points;
};

void measure()
{
    const PeerRows rows;
    rows.scintilla();
    rows.ksyntax();
    rows.highlight();
    rows.pygmentize();
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
