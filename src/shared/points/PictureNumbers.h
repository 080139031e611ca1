#pragma once

#include <QtCore/qglobal.h>

namespace ORVTListview {

// The numbers of the pictures of the words of a program. The picture of a class of
// points is that of its type.
// Why it is so: docs/decisions/pictures.md.
enum PictureNumber : qint16 {
    NoPicture = 0,
    FanInPicture = 61,
    TimeWordPicture,
    FunctionPicture,
    KeywordPicture,
    OtherWordPicture,
    ConstantPicture,
    VariablePicture,
    InputPicture,
    OutputPicture,
    NvoPicture,
    NviPicture,
};

} // namespace ORVTListview
