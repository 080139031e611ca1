#include <ORVTListview/ORVRichText.h>

#include "base/ThreadState.h"
#include "shared/texts/TextRoutine.h"
#include "shared/texts/TextTable.h"

#include <QtCore/QTimer>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolBar>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

template <typename Child>
void addHidden(ORVRichText &control, const QString &name)
{
    auto *child = new Child(&control);
    child->setObjectName(name);
    child->hide();
}

void addIdleTimer(ORVRichText &control, const QString &name)
{
    auto *timer = new QTimer(&control);
    timer->setObjectName(name);
}

} // namespace

ORVRichText::ORVRichText(QWidget *parent)
    : InputComponent(parent)
{
    addHidden<QToolBar>(*this, u"Toolbar1"_s);
    for (const QString &name : {u"PictureBall"_s, u"PictureFuncDef"_s, u"Label1"_s})
        addHidden<QLabel>(*this, name);
    for (const QString &name : {u"ComboList"_s, u"ComboSubList"_s, u"Combo2"_s})
        addHidden<QComboBox>(*this, name);
    for (const QString &name : {u"TimerKeyDown"_s, u"TimerStatusEvent"_s, u"TimerShowText"_s,
                                u"TimerSelStartEvent"_s, u"TimerSubList"_s})
        addIdleTimer(*this, name);
}

ORVRichText::~ORVRichText() = default;

void ORVRichText::InitControl(QObject *) {}

void ORVRichText::RichTextCut() {}

void ORVRichText::RichTextCopy() {}

void ORVRichText::RichTextSelectAll() {}

void ORVRichText::ReinitializeWordCollection() {}

bool ORVRichText::IsWordFound(const QString &)
{
    return false;
}

bool ORVRichText::Find(const QString &, qint32 &, qint32 &)
{
    return false;
}

QString ORVRichText::ReplaceSpaceEquivalent(const QString &)
{
    return {};
}

void ORVRichText::Clear() {}

QString ORVRichText::GetData()
{
    return {};
}

void ORVRichText::ValidateTextColor() {}

bool ORVRichText::ReloadData(const QString &)
{
    return false;
}

void ORVRichText::InitStrings() {}

void ORVRichText::ReInitializeStrings()
{
    runTextRoutine(TextRoutine::richText, [this] {
        threadPart<TextTable>().refresh();
        InitStrings();
    });
}

} // namespace ORVTListview
