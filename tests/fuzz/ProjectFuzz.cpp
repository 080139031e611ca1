// Project files of any bytes fail with Error or can be edited, which changes nothing
// but the place; program files keep their bytes.

#include "fuzz/FuzzBytes.h"

#include "project/JsonEdit.h"
#include "project/ProjectColumns.h"
#include "project/ProjectReader.h"
#include "project/TextFile.h"
#include <ORVTListview/Error.h>

#include <optional>

using namespace ORVTListview;
using namespace ORVTListview::Fuzzing;

namespace {

const QString file = QStringLiteral("file");

std::optional<ProjectContents> contentsOf(const QByteArray &json)
{
    try {
        return readContents(JsonPlace::parse(json, file));
    } catch (const Error &error) {
        demand(error.Description().startsWith(file), "an error names the file");
        return std::nullopt;
    }
}

// The two but for the name of the project.
void checkSame(const ProjectContents &a, const ProjectContents &b)
{
    demand(a.controller == b.controller && a.rows == b.rows && a.indexedNames == b.indexedNames &&
               a.programs == b.programs,
           "an edit changes nothing else");
}

void checkEdit(const QByteArray &json, const QString &name)
{
    const auto contents = contentsOf(json);
    if (!contents)
        return;
    JsonEdit edit(json);
    demand(edit.bytes() == json, "without a change the file stays");
    const JsonPlace place = JsonPlace::parse(json, file).member(QStringLiteral("name"));
    edit.replace(place, name);
    const QByteArray edited = edit.bytes();
    demand(edited.startsWith(json.first(place.start())) &&
               edited.endsWith(json.sliced(place.end())),
           "an edit keeps the layout");
    demand(JsonPlace::parse(edited, file).member(QStringLiteral("name")).text() == name,
           "a text comes back");
    const auto after = contentsOf(edited);
    demand(after.has_value() == isPointName(name), "a name is what can be read");
    if (after)
        checkSame(*contents, *after);
}

void checkProgram(const QByteArray &bytes)
{
    QString program;
    const ProgramFormat format = programFormat(bytes);
    try {
        program = decodeProgram(bytes, file);
    } catch (const Error &) {
        return;
    }
    const QByteArray encoded = encodeProgram(program, format, file);
    demand(decodeProgram(encoded, file) == program, "a program comes back");
    demand(programFormat(encoded).hasByteOrderMark == format.hasByteOrderMark, "with its mark");
    demand(encodeProgram(program, programFormat(encoded), file) == encoded, "to the byte");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzBytes bytes(data, size);
    const bool isProgram = bytes.below(4) == 1;
    const QString name = bytes.text();
    const bool hasHalf = !name.isValidUtf16();
    const QByteArray content = bytes.rest();
    if (isProgram)
        checkProgram(content);
    else
        checkEdit(content, hasHalf ? QStringLiteral("name") : name);
    return 0;
}
