#include "widgets/look/Pictures.h"

#include "shared/points/DisplayNames.h"
#include "shared/points/PictureNumbers.h"
#include "widgets/look/CompiledDrawings.h"
#include <ORVTListview/ImageList.h>

#include <array>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

struct Row
{
    QString key;
    qint32 index = 0;
    QString file;
};

struct TypeRow
{
    LwType type = dsCode;
    qint32 index = 0;
    QString file;
};

constexpr qint32 firstPressedIndex = 21;

void addTypes(ImageList &list)
{
    const std::array<TypeRow, highestType + 1> types{{
        {dsCode, 5, u"code"_s},
        {dsController, 6, u"controllers"_s},
        {dsLog, 7, u"logs"_s},
        {dsTimer, 8, u"timers"_s},
        {dsOs, 9, u"optimum-starts"_s},
        {dsInputParam, 10, u"input-parameters"_s},
        {dsOutputParam, 11, u"output-parameters"_s},
        {dsConst, ConstantPicture, u"constants"_s},
        {dsVariable, VariablePicture, u"variables"_s},
        {dsInput, InputPicture, u"inputs"_s},
        {dsOutput, OutputPicture, u"outputs"_s},
        {dsNvo, NvoPicture, u"network-var-outputs"_s},
        {dsNvi, NviPicture, u"network-var-inputs"_s},
    }};
    for (const TypeRow &row : types) {
        const QString key = displayName(row.type);
        list.Add(key, row.index, CompiledDrawings::fileOf(row.file));
        list.Add(Pictures::pressedKey(key), firstPressedIndex + row.type,
                 CompiledDrawings::fileOf(row.file), ImageList::Look::Pressed);
    }
}

void addOthers(ImageList &list)
{
    const std::array<Row, 9> others{{
        {u"Device"_s, 1, u"device"_s},
        {u"Page"_s, 2, u"page"_s},
        {u"BallGreen"_s, 3, u"ball-green"_s},
        {u"BallRed"_s, 4, u"ball-red"_s},
        {u"Fan-In Words"_s, FanInPicture, u"fan-in"_s},
        {u"Time Words"_s, TimeWordPicture, u"time-word"_s},
        {u"Functions"_s, FunctionPicture, u"function"_s},
        {u"Keywords"_s, KeywordPicture, u"keyword"_s},
        {u"Other Words"_s, OtherWordPicture, u"text"_s},
    }};
    for (const Row &row : others)
        list.Add(row.key, row.index, CompiledDrawings::fileOf(row.file));
}

} // namespace

void Pictures::fillInto(ImageList &list)
{
    addTypes(list);
    addOthers(list);
}

QString Pictures::pressedKey(const QString &displayName)
{
    return displayName + u"Down"_s;
}

} // namespace ORVTListview
