#include "bounds/Operations.h"

#include "editor/rules/colouring/ColouringFixture.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/structure/BlockWords.h"
#include "editor/rules/structure/Folding.h"
#include "editor/rules/undo/UndoStore.h"
#include "find/rules/ProgramSearch.h"
#include "project/JsonParser.h"
#include "project/ProjectColumns.h"
#include "project/ProjectReader.h"
#include "project/TextFile.h"
#include "project/analysis/ProgramAnalysis.h"
#include "rtf/RtfReader.h"
#include "rtf/RtfWriter.h"
#include "shared/compression/Compression.h"
#include "shared/settings/SettingsDocument.h"

#include <QtCore/QStringList>

#include <memory>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// A part again and again, so many units together.
QString filled(const QString &part, int size)
{
    return part.repeated(static_cast<int>(size / part.size()) + 1);
}

QString numbered(const QString &part, int size)
{
    QString text;
    for (int i = 0; text.size() < size; ++i)
        text += part.arg(i);
    return text;
}

const QString programLine = u"    IF Temp1 > 20 AND ( Var1 < Limit1 ) REM_x NetTemp 12.5\r\n"_s;

class NoSink final : public RtfSink
{
public:
    void text(QStringView text, const RtfFormat &) override { length += text.size(); }
    void lineEnd() override { ++length; }

    qsizetype length = 0;
};

Operation reading(const char *name, const std::function<QString(int)> &document)
{
    return {std::string("read RTF: ") + name, [document](int size) {
                return [rtf = document(size)] {
                    NoSink sink;
                    readRtf(rtf, sink);
                };
            }};
}

Operation readingParts(const char *name, const QString &part)
{
    return reading(name, [part](int size) { return u"{\\rtf1 "_s + filled(part, size) + u'}'; });
}

std::vector<Operation> readings()
{
    return {
        readingParts("text", u"IF Temp1 > 20\\par\r\n"_s),
        readingParts("colours", u"\\cf1 a\\cf0 b\\b c\\b0 "_s),
        readingParts("groups", u"{\\b a}{\\i b}"_s),
        readingParts("code pages", u"\\'e4\\'83\\'fc"_s),
        readingParts("Unicode", u"\\u8364?\\u-10179?\\u-8704?"_s),
        readingParts("unknown words", u"\\unknown12 \\*\\other"_s),
        readingParts("destinations", u"{\\pict{a}}{\\*\\x b}"_s),
        reading("fonts",
                [](int size) {
                    return u"{\\rtf1{\\fonttbl"_s + numbered(u"{\\f%1 Name;}"_s, size) + u"}a}"_s;
                }),
        reading("colour table",
                [](int size) {
                    return u"{\\rtf1{\\colortbl"_s + filled(u"\\red1\\blue2;"_s, size) + u"}a}"_s;
                }),
        reading("open groups", [](int size) { return u"{\\rtf1 "_s + filled(u"{"_s, size); }),
        reading("tables without end",
                [](int size) { return u"{\\rtf1"_s + filled(u"{\\fonttbl{\\f1"_s, size); }),
        reading("one word", [](int size) { return u"{\\rtf1\\"_s + filled(u"x"_s, size); }),
        reading("one number", [](int size) { return u"{\\rtf1\\b"_s + filled(u"9"_s, size); }),
    };
}

Operation writing(const char *name, const QString &text)
{
    return {std::string("write RTF: ") + name, [text](int size) {
                return [all = filled(text, size)] {
                    RtfWriter writer({});
                    RtfFormat format;
                    for (qsizetype at = 0; at < all.size(); at += 7) {
                        format.colour = static_cast<qint32>(at % 5);
                        writer.text(all.mid(at, 7), format);
                        if (at % 3 == 0)
                            writer.lineEnd();
                    }
                    static_cast<void>(writer.finish());
                };
            }};
}

Operation colouring(const char *name, const QString &part)
{
    return {std::string("colour: ") + name, [part](int size) {
                return [text = filled(part, size), host = std::make_shared<Colouring>()] {
                    static_cast<void>(colouredText(host->engine(), text, false, defaultColours()));
                    static_cast<void>(finishedText(host->engine(), text, defaultColours()));
                };
            }};
}

Operation searching(const char *name, const QString &part, const QString &wanted, bool wholeWord)
{
    return {std::string("find: ") + name, [=](int size) {
                return [=, text = filled(part, size)] {
                    static_cast<void>(placesToReplace(text, wanted, {wholeWord, false}));
                    static_cast<void>(placesOfWord(text, wanted));
                    static_cast<void>(
                        findInProgramBefore(text, wanted, text.size(), {wholeWord, true}));
                };
            }};
}

std::vector<Operation> searches()
{
    const QString as(200, u'a');
    return {searching("a word", programLine, u"Temp1"_s, true),
            searching("everywhere", u"a"_s, u"a"_s, false),
            searching("beside underscores", u"a_"_s, u"a"_s, true),
            searching("almost", u"a"_s, u'b' + as, false),
            searching("almost, at the end", u"a"_s, as + u'b', false)};
}

Operation storing(const char *name, const QString &part)
{
    return {std::string("undo: ") + name, [part](int size) {
                return [text = filled(part, size)] {
                    UndoStore ring(1'000'000);
                    for (int i = 0; i < 4; ++i)
                        ring.StoreUndoSnapshot({text + QString::number(i), i, 0});
                    while (ring.encodePending(10'000)) {
                    }
                    while (const auto slot = ring.UndoStepBack())
                        static_cast<void>(ring.FetchUndoSnapshot(*slot));
                };
            }};
}

Operation compressing(const char *name, const QString &part)
{
    return {std::string("compress: ") + name, [part](int size) {
                return [text = filled(part, size)] {
                    const QString there = ModZlib::CompressString(text);
                    static_cast<void>(ModZlib::UncompressString(there));
                };
            }};
}

Operation settings(const char *name, const QString &line)
{
    return {std::string("settings: ") + name,
            [line](int size) {
                return [bytes = numbered(line, size).toUtf8()] {
                    SettingsDocument document = *SettingsDocument::fromBytes(bytes);
                    document.apply({{{u"Other"_s, u"Key"_s}, u"value"_s}});
                    static_cast<void>(document.toBytes());
                };
            },
            1};
}

Operation parsing(const char *name, const std::function<QString(int)> &document)
{
    return {std::string("JSON: ") + name,
            [document](int size) {
                return [json = document(size).toUtf8()] {
                    try {
                        static_cast<void>(JsonParser::parse(json));
                    } catch (const JsonFault &) {
                        return; // with a place, which takes its time too
                    }
                };
            },
            1};
}

// With the same number of rows in every table, the shortest that there are.
QByteArray projectOf(int size)
{
    constexpr int ofOneRowEach = 150;
    QString json = u"{\"format\":1,\"name\":\"P\",\"program\":\"p\""_s;
    for (const LwType type : projectTypes()) {
        const QString row = nameColumn(type) < 0 ? u"{}"_s : u"{\"name\":\"N%1\"}"_s;
        QStringList rows;
        for (int i = 0; i < size / ofOneRowEach; ++i)
            rows.append(row.contains(u'%') ? row.arg(i) : row);
        json += u",\"%1\":[%2]"_s.arg(projectMember(type), rows.join(u','));
    }
    return json.toUtf8() + '}';
}

std::vector<Operation> projects()
{
    return {
        parsing("elements", [](int size) { return u"["_s + filled(u"1,"_s, size) + u"1]"_s; }),
        parsing("members",
                [](int size) { return u"{"_s + numbered(u"\"%1\":1,"_s, size) + u"\"\":1}"_s; }),
        parsing("open brackets", [](int size) { return filled(u"["_s, size); }),
        parsing("one text",
                [](int size) { return u"[\""_s + filled(u"\\u20ac"_s, size) + u"\"]"_s; }),
        {"read a project",
         [](int size) {
             return [json = projectOf(size)] {
                 static_cast<void>(readContents(JsonPlace::parse(json, u"p"_s)));
             };
         },
         1},
        {"read a program",
         [](int size) {
             return [bytes = filled(programLine, size).toUtf8()] {
                 const QString text = decodeProgram(bytes, u"x"_s);
                 static_cast<void>(encodeProgram(text, programFormat(bytes), u"x"_s));
             };
         },
         1},
    };
}

Operation blocks(const char *name, const QString &part)
{
    return {std::string("blocks: ") + name, [part](int size) {
                return [lines = filled(part, size).split(u"\r\n"_s)] {
                    ProgramBlocks found;
                    for (const QString &line : lines)
                        found.read(line);
                };
            }};
}

Operation checking(const char *name, const QString &part)
{
    return {std::string("check: ") + name, [part](int size) {
                return [lines = filled(part, size).split(u"\r\n"_s),
                        host = std::make_shared<Colouring>()] {
                    ProgramAnalysis analysis([&lines](qint32 line) { return lines.at(line); });
                    analysis.setWords(ProgramWords(host->vocabulary, host->words.index()));
                    analysis.reset(static_cast<qint32>(lines.size()));
                    analysis.finish();
                };
            }};
}

std::vector<Operation> allOperations()
{
    std::vector<Operation> all = readings();
    const std::vector<Operation> others{
        writing("text", u"IF Temp1 > 20 "_s),
        writing("characters", u"\u20ac\\{}\t\u00e4"_s),
        colouring("a program", programLine),
        colouring("one line", u"IF Temp1 > 20 "_s),
        colouring("brackets", u"("_s),
        colouring("unknown words", u"unknown "_s),
        colouring("one word", u"x"_s),
        colouring("comments", u"rem IF Temp1\r\n"_s),
        colouring("blanks", u" \t"_s),
        storing("a program", programLine),
        storing("separators", u"%%%%%%"_s),
        storing("another alphabet", u"\u0416\u0401 "_s),
        compressing("a program", programLine),
        compressing("one letter", u"a"_s),
        settings("lines", u"Name%1=value\n"_s),
        settings("the same name", u"Name=%1\n"_s),
        settings("sections", u"[Section %1]\n"_s),
        blocks("in a row", u"IF a\r\n  b\r\nENDIF\r\n"_s),
        blocks("in one another", u"IF a\r\n"_s),
        blocks("on one line", u"IF a ENDIF "_s),
        checking("a program", programLine + u"ENDIF\r\n"_s),
        checking("one line", u"unknown ( IF ,"_s),
        checking("open blocks", u"IF a\r\nELSE\r\n"_s),
    };
    for (const std::vector<Operation> &some : {searches(), others, projects()})
        all.insert(all.end(), some.cbegin(), some.cend());
    return all;
}

} // namespace

const std::vector<Operation> &operations()
{
    static const std::vector<Operation> all = allOperations();
    return all;
}
