#pragma once

#include <ORVTListview/Colour.h>
#include <ORVTListview/CoreExport.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

// The enumerations and records that hosts and components share. Names, values
// and the order of fields are published and never change.

namespace ORVTListview {
Q_NAMESPACE_EXPORT(ORVT_CORE_EXPORT)

// The kind of point list a control shows, or the code editor. Any other value is
// no type: what switches on a type does nothing for it.
enum LwType : qint32 {
    dsCode = 0,
    dsVariable = 1,
    dsConst = 2,
    dsInput = 3,
    dsOutput = 4,
    dsController = 5,
    dsLog = 6,
    dsTimer = 7,
    dsOs = 8,
    dsNvi = 9,
    dsNvo = 10,
    dsInputParam = 11,
    dsOutputParam = 12,
};
Q_ENUM_NS(LwType)

// Zero-based column positions within a type's layout. Several are equal on
// purpose. The spelling "Controler" is published.
enum LWNB : qint32 {
    Sep_Input = 3,
    Sep_Output = 3,
    Sep_Constant = 2,
    Sep_Variable = 3,
    Sep_Input_Nv = 2,
    Sep_Output_Nv = 2,
    Sep_Input_Param = 8,
    Sep_Output_Param = 1,
    Sep_Controler = 11,
    Sep_Log = 5,
    Sep_Timer = 2,
    Sep_OptimumStart = 7,
};
Q_ENUM_NS(LWNB)

// What a drag operation is asked to do. dcCancel and dcEndDrag share a value, so
// a receiver cannot tell them apart; there is no value 0.
enum ActionIndex : qint32 {
    dcCancel = 2,
    dcBeginDrag = 1,
    dcEndDrag = 2,
};
Q_ENUM_NS(ActionIndex)

// The code editor's appearance. Its colours are as Colour.h says, none of them
// automatic. FontSize is in points. FontStyle is free text in which "b1", "i1" and
// "u1", in any letter case, mean bold, italic and underlined. nvoFPAColor is accepted
// and never used: network variable outputs are no word class of their own.
struct RichTextSettings
{
    Q_GADGET_EXPORT(ORVT_CORE_EXPORT)
    Q_PROPERTY(qint32 BackColor MEMBER BackColor)
    Q_PROPERTY(QString FontName MEMBER FontName)
    Q_PROPERTY(qint16 FontSize MEMBER FontSize)
    Q_PROPERTY(QString FontStyle MEMBER FontStyle)
    Q_PROPERTY(qint32 VariableColor MEMBER VariableColor)
    Q_PROPERTY(qint32 ConstantColor MEMBER ConstantColor)
    Q_PROPERTY(qint32 InputColor MEMBER InputColor)
    Q_PROPERTY(qint32 OutputColor MEMBER OutputColor)
    Q_PROPERTY(qint32 ReservedWordColor MEMBER ReservedWordColor)
    Q_PROPERTY(qint32 CommentColor MEMBER CommentColor)
    Q_PROPERTY(qint32 nviFPAColor MEMBER nviFPAColor)
    Q_PROPERTY(qint32 nvoFPAColor MEMBER nvoFPAColor)

public:
    qint32 BackColor = 0;         // of the editor's ground
    QString FontName;             // empty: the font stays
    qint16 FontSize = 0;          // in points; 0: the size stays
    QString FontStyle;            // "b1i0u0" for bold
    qint32 VariableColor = 0;     // of the names of variables
    qint32 ConstantColor = 0;     // of the names of constants
    qint32 InputColor = 0;        // of the names of inputs
    qint32 OutputColor = 0;       // of the names of outputs
    qint32 ReservedWordColor = 0; // of keywords, functions and indexed names
    qint32 CommentColor = 0;      // of comments
    qint32 nviFPAColor = 0;       // of the names of network variable inputs
    qint32 nvoFPAColor = 0;       // never used

    friend bool operator==(const RichTextSettings &, const RichTextSettings &) = default;
};

// One page of the project tree. Index and Key are parallel.
struct Pages
{
    Q_GADGET_EXPORT(ORVT_CORE_EXPORT)
    Q_PROPERTY(QString Name MEMBER Name)
    Q_PROPERTY(QList<ORVTListview::LwType> Index MEMBER Index)
    Q_PROPERTY(QStringList Key MEMBER Key)

public:
    QString Name;        // not filled by the tree
    QList<LwType> Index; // the types of the page's categories
    QStringList Key;     // their display names

    friend bool operator==(const Pages &, const Pages &) = default;
};

} // namespace ORVTListview
