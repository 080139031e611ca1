#include "combo/PointEntries.h"

#include "base/ThreadState.h"
#include "editor/rules/colouring/EditorState.h"
#include "editor/rules/language/Vocabulary.h"
#include "editor/rules/language/WordClass.h"
#include "shared/points/HostPoints.h"

#include <algorithm>
#include <array>

namespace ORVTListview {
namespace {

using Source = HostReference<PointCollection> Vocabulary::Collections::*;

struct Kind
{
    qint32 type = 0;
    Source source = nullptr;
};

constexpr std::array kinds{
    Kind{dsVariable, &Vocabulary::Collections::variables},
    Kind{dsConst, &Vocabulary::Collections::constants},
    Kind{dsInput, &Vocabulary::Collections::inputs},
    Kind{dsOutput, &Vocabulary::Collections::outputs},
};

const Kind *kindOf(qint32 type)
{
    const auto *found = std::find_if(kinds.begin(), kinds.end(),
                                     [type](const Kind &kind) { return kind.type == type; });
    return found == kinds.end() ? nullptr : found;
}

ClassStyle styleOfType(qint32 type, const RichTextSettings &settings)
{
    ClassStyle style;
    ClassStyleForType(type, settings, style);
    return style;
}

} // namespace

bool hasPointEntries(qint32 type)
{
    return kindOf(type) != nullptr;
}

QList<ComboEntry> pointEntries(qint32 type)
{
    QList<ComboEntry> entries;
    const Kind *kind = kindOf(type);
    if (!kind)
        return entries;
    const HostReference<PointCollection> &points =
        threadPart<Vocabulary>().collections().*(kind->source);
    const qint32 image = styleOfType(type, RichTextSettings()).ImageIndex;
    const QList<Point> all = HostPoints::read(points, QStringLiteral("FillDataListview"));
    entries.reserve(all.size());
    for (const Point &point : all)
        entries.append({.key = point.Name,
                        .text = point.Name,
                        .image = image,
                        .selectedImage = image,
                        .tag = QString::number(point.Data)});
    return entries;
}

std::optional<Colour> pointColour(qint32 image)
{
    const auto &state = threadPart<EditorState>();
    if (state.RtfHeader.isEmpty())
        return std::nullopt;
    for (const Kind &kind : kinds) {
        const ClassStyle style = styleOfType(kind.type, state.EditorSettings);
        if (style.ImageIndex == image)
            return style.Colour;
    }
    return std::nullopt;
}

} // namespace ORVTListview
