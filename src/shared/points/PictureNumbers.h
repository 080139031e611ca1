#pragma once

#include <QtCore/qglobal.h>

namespace ORVTListview {

// The numbers of the pictures of the words of a program. The picture of a class of
// points is that of its type.
// Why it is so: docs/decisions/pictures.md.
enum PictureNumber : qint16 {
    NoPicture = 0,
    FanInPicture = 61,
    TimeWordPicture = 62,
    FunctionPicture = 63,
    KeywordPicture = 64,
    OtherWordPicture = 65,
    ConstantPicture = 66,
    VariablePicture = 67,
    InputPicture = 68,
    OutputPicture = 69,
    NvoPicture = 70,
    NviPicture = 71,
};

} // namespace ORVTListview
