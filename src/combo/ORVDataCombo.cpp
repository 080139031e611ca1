#include <ORVTListview/ORVDataCombo.h>

#include "base/ThreadState.h"
#include "combo/PointEntries.h"
#include "shared/texts/TextRoutine.h"
#include "shared/texts/TextTable.h"
#include "shared/texts/ToldFailure.h"
#include "widgets/combo/ImageCombo.h"
#include "widgets/component/BagReader.h"
#include "widgets/component/ToldProperties.h"
#include "widgets/input/DragEvents.h"
#include "widgets/input/RelayedEvents.h"
#include "widgets/look/Colours.h"
#include "widgets/look/Pictures.h"
#include <ORVTListview/ImageList.h>

#include <QtCore/QEvent>
#include <QtCore/QPointer>

#include <algorithm>
#include <limits>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

qint16 saturated(qint32 value)
{
    constexpr qint32 most = std::numeric_limits<qint16>::max();
    return static_cast<qint16>(std::min(value, most));
}

} // namespace

struct ORVDataCombo::Private
{
    explicit Private(ORVDataCombo &control)
        : combo(new ImageCombo(&control))
    {
        Pictures::fillInto(images);
        combo->setObjectName(u"ImageCombo1"_s);
        combo->setImageList(&images);
    }

    ImageList images;
    ImageCombo *combo; // a child of the control
    qint32 formParentHandle = 0;
    ToldProperties<ORVDataCombo> told;
};

ORVDataCombo::ORVDataCombo(QWidget *parent)
    : InputComponent(parent)
{
    d = std::make_unique<Private>(*this);
    setFocusPolicy(Qt::TabFocus); // else no call puts the control into a tab order
    setFocusProxy(d->combo);
    setSizePolicy(d->combo->sizePolicy());
    connect(d->combo, &ImageCombo::focusLeft, this, &ORVDataCombo::applyColour);
    connect(d->combo, &ImageCombo::Click, this, &ORVDataCombo::applyColour);
    tellProperties();
    relayEvents();
}

ORVDataCombo::~ORVDataCombo()
{
    delete d->combo; // before its pictures
}

void ORVDataCombo::tellProperties()
{
    d->told.add(*this, &ORVDataCombo::Text, &ORVDataCombo::textChanged);
    d->told.add(*this, &ORVDataCombo::Enabled, &ORVDataCombo::enabledChanged);
    d->told.add(*this, &ORVDataCombo::ListCount, &ORVDataCombo::listCountChanged);
    d->told.add(*this, &ORVDataCombo::ListIndex, &ORVDataCombo::listIndexChanged);
    d->told.add(*this, &ORVDataCombo::dragsEntry, &ORVDataCombo::dragsEntryChanged);
    connect(d->combo, &ImageCombo::Click, this, &ORVDataCombo::tell);
    connect(d->combo, &ImageCombo::Change, this, &ORVDataCombo::tell);
    // The toolkit is at work on the field still.
    connect(d->combo, &QComboBox::currentIndexChanged, this, &ORVDataCombo::tell,
            Qt::QueuedConnection);
}

void ORVDataCombo::relayEvents()
{
    const ImageCombo *combo = d->combo;
    connect(combo, &ImageCombo::Change, this, &ORVDataCombo::Change);
    relayClicks(combo, this);
    connect(combo, &ImageCombo::picked, this, &ORVDataCombo::picked);
    relayKeys(combo, this);
    relayDrags(&combo->drags(), this);
}

void ORVDataCombo::FillDataListview(LwType TypeIndex, PointCollection *, QString &ErrMsg)
{
    if (!hasPointEntries(TypeIndex))
        return;
    tellingFailure(ErrMsg, [&] { d->combo->setEntries(pointEntries(TypeIndex)); });
    tell();
}

void ORVDataCombo::SetListIndex(const QString &Data)
{
    const qint32 index = d->combo->indexOf(Data);
    if (index == 0)
        return;
    d->combo->setSelectedIndex(index);
    applyColour();
    tell();
}

void ORVDataCombo::tell()
{
    d->told.tell(*this);
}

void ORVDataCombo::applyColour()
{
    const qint32 selected = d->combo->selectedIndex();
    if (selected == 0)
        return;
    const std::optional<qint32> colour = pointColour(d->combo->entry(selected).selectedImage);
    if (colour)
        d->combo->setTextColour(Colours::toColor(*colour, palette()));
}

qint32 ORVDataCombo::ItemData(qint16 Index) const
{
    return Index >= 0 && Index < ListCount() ? d->combo->entry(Index + 1).tag.toInt() : 0;
}

qint16 ORVDataCombo::ListCount() const
{
    return saturated(d->combo->count());
}

qint16 ORVDataCombo::ListIndex() const
{
    return saturated(d->combo->selectedIndex() - 1);
}

QString ORVDataCombo::Text() const
{
    return d->combo->text();
}

void ORVDataCombo::setText(const QString &Text)
{
    d->combo->setText(Text);
}

bool ORVDataCombo::Enabled() const
{
    return !testAttribute(Qt::WA_ForceDisabled);
}

void ORVDataCombo::setEnabled(bool Enabled)
{
    const QPointer<ORVDataCombo> self(this);
    QWidget::setEnabled(Enabled);
    if (self)
        tell();
}

void ORVDataCombo::Clear()
{
    d->combo->setEntries({});
    tell();
}

void ORVDataCombo::ResetbackColor(qint32) {}

void ORVDataCombo::UpdateListWidth() {}

void ORVDataCombo::setFormParentHandle(qint32 Handle)
{
    d->formParentHandle = Handle;
}

void ORVDataCombo::InitStrings() {}

void ORVDataCombo::ReInitializeStrings()
{
    runTextRoutine(TextRoutine::dataCombo, [this] {
        threadPart<TextTable>().refresh();
        InitStrings();
    });
}

void ORVDataCombo::ReadProperties(const PropertyBag &Bag)
{
    const auto read = bagReader(Bag, u"ORVDataCombo.ReadProperties"_s);
    const QString text = read(u"Text"_s, QString()).toString();
    const bool isEnabled = read(u"Enabled"_s, true).toBool();
    const QPointer<ORVDataCombo> self(this); // the host hears of each
    setText(text);
    if (self)
        setEnabled(isEnabled);
}

void ORVDataCombo::WriteProperties(PropertyBag &Bag) const
{
    raisingErrors(u"ORVDataCombo.WriteProperties"_s, [&] {
        Bag.WriteProperty(u"Text"_s, Text(), QString());
        Bag.WriteProperty(u"Enabled"_s, Enabled(), true);
    });
}

bool ORVDataCombo::dragsEntry() const
{
    return d->combo->dragsEntry();
}

void ORVDataCombo::setDragsEntry(bool on)
{
    d->combo->setDragsEntry(on);
    tell();
}

QSize ORVDataCombo::sizeHint() const
{
    return d->combo->sizeHint();
}

QSize ORVDataCombo::minimumSizeHint() const
{
    return d->combo->minimumSizeHint();
}

bool ORVDataCombo::event(QEvent *event)
{
    if (event->type() == QEvent::AcceptDropsChange && d)
        d->combo->setAcceptDrops(acceptDrops());
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::EnabledChange && d)
        tell();
    return handled;
}

void ORVDataCombo::resizeEvent(QResizeEvent *)
{
    d->combo->setGeometry(rect());
}

} // namespace ORVTListview
