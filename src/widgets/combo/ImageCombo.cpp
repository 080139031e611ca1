#include "widgets/combo/ImageCombo.h"

#include "base/EventGuard.h"
#include "widgets/combo/ImageComboAccess.h"
#include "widgets/combo/ImageComboParts.h"
#include "widgets/component/AccessFactory.h"
#include "widgets/input/FieldMenu.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/ImageList.h>

#include <QtCore/QMimeData>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QStyleOptionComboBox>

#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

QAccessibleInterface *makeAccess(const QString &, QObject *object)
{
    auto *combo = qobject_cast<ImageCombo *>(object);
    if (!combo)
        return nullptr;
    return new ImageComboAccess(*combo, [combo]() -> QListView & { return *combo->listView(); });
}

void installAccess()
{
    static AccessFactory factory(makeAccess);
    factory.install();
}

} // namespace

ImageCombo::ImageCombo(QWidget *parent)
    : QComboBox(parent)
{
    installAccess();
    d = std::make_unique<ImageComboParts>(
        *this, [this](QPoint global) { return isArrowAt(mapFromGlobal(global)); });
    QComboBox::setModel(d->entries);
    setUpField();
    setUpDrag();
    setFocusPolicy(Qt::StrongFocus); // without the wheel
    // Else the toolkit measures every entry.
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    connect(d->list, &ComboList::toggled, this, [this] { update(); });
    connect(d->list, &ComboList::chosen, this, [this](int row) {
        choose(row);
        pick();
        raiseNoted();
    });
    connect(this, &QComboBox::activated, this, [this] {
        remember();
        d->isClicked = true;
    });
}

ImageCombo::~ImageCombo()
{
    d->list->letGo();
    d->field.letGo();
    d.reset(); // before the events that it sends reach a combo half gone
}

void ImageCombo::setUpField()
{
    QLineEdit &field = *lineEdit();
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    field.setAcceptDrops(false); // drops are the combo's
    field.installEventFilter(this);
    // The base would look through all entries, and its own way.
    disconnect(&field, &QLineEdit::editingFinished, this, nullptr);
    FieldMenu::installOn(field);
    connect(&field, &QLineEdit::textEdited, this, &ImageCombo::noteEdit);
}

void ImageCombo::setUpDrag()
{
    d->drag.setContent([this](QMimeData &dragged) { dragged.setText(text()); });
}

void ImageCombo::setImageList(const ImageList *images)
{
    d->entries->setImages(images);
    update();
}

void ImageCombo::setEntries(QList<ComboEntry> entries)
{
    hidePopup();
    const QString kept = currentIndex() < 0 ? text() : QString();
    d->entries->setEntries(std::move(entries));
    select(-1); // the base has selected the first
    lineEdit()->setText(kept);
    remember();
}

const ComboEntry &ImageCombo::entry(qint32 index) const
{
    if (index < 1 || index > d->entries->size())
        throw Error(SubscriptOutOfRange, u"ImageCombo"_s, u"There is no entry %1"_s.arg(index));
    return d->entries->at(index - 1);
}

qint32 ImageCombo::indexOf(const QString &key) const
{
    return d->entries->rowOfKey(key) + 1;
}

qint32 ImageCombo::selectedIndex() const
{
    return currentIndex() + 1;
}

void ImageCombo::setSelectedIndex(qint32 index)
{
    if (index != 0)
        entry(index); // refuses what is not there
    hidePopup();
    select(index - 1);
    remember();
}

void ImageCombo::select(int row)
{
    setCurrentIndex(row);
    if (hasFocus())
        lineEdit()->selectAll(); // so that typing replaces it
}

// The text stays. The base would empty the field.
void ImageCombo::endSelection()
{
    if (currentIndex() < 0)
        return;
    QLineEdit &field = *lineEdit();
    const QSignalBlocker quiet(field);
    const QString shown = field.text();
    const int caret = field.cursorPosition();
    setCurrentIndex(-1);
    field.setText(shown);
    field.setCursorPosition(caret);
}

void ImageCombo::remember()
{
    d->settledRow = currentIndex();
    d->settledText = text();
}

void ImageCombo::setText(const QString &text)
{
    if (text == this->text())
        return;
    hidePopup();
    endSelection();
    lineEdit()->setText(text);
    remember();
    raiseEvent(*this, &ImageCombo::Change);
}

QColor ImageCombo::textColour() const
{
    return d->textColour;
}

void ImageCombo::setTextColour(const QColor &colour)
{
    d->textColour = colour;
    colourField();
}

void ImageCombo::colourField()
{
    QPalette own; // states nothing else, so that the rest follows the theme
    own.setResolveMask(0);
    if (d->textColour.isValid()) {
        own.setColor(QPalette::Active, QPalette::Text, d->textColour);
        own.setColor(QPalette::Inactive, QPalette::Text, d->textColour);
    }
    lineEdit()->setPalette(own);
}

void ImageCombo::changeEvent(QEvent *event)
{
    QComboBox::changeEvent(event);
    if (d && event->type() == QEvent::PaletteChange)
        colourField(); // the base has given the field its own
}

const DragEvents &ImageCombo::drags() const
{
    return d->drag;
}

bool ImageCombo::dragsEntry() const
{
    return d->dragsEntry;
}

void ImageCombo::setDragsEntry(bool on)
{
    d->dragsEntry = on;
}

bool ImageCombo::isListOpen() const
{
    return d->list->isVisible();
}

QListView *ImageCombo::listView() const
{
    return &d->list->view();
}

void ImageCombo::showPopup()
{
    d->list->open(QString(), currentIndex());
}

void ImageCombo::hidePopup()
{
    d->list->hide();
}

bool ImageCombo::isArrowAt(QPoint position) const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->hitTestComplexControl(QStyle::CC_ComboBox, &option, position, this) ==
           QStyle::SC_ComboBoxArrow;
}

void ImageCombo::initStyleOption(QStyleOptionComboBox *option) const
{
    QComboBox::initStyleOption(option);
    if (!d)
        return;
    const ImageList *images = d->entries->images();
    if (currentIndex() >= 0 && images && images->Contains(entry(selectedIndex()).selectedImage))
        option->currentIcon = images->Picture(entry(selectedIndex()).selectedImage);
    if (isListOpen()) {
        option->activeSubControls = QStyle::SC_ComboBoxArrow;
        option->state |= QStyle::State_Sunken | QStyle::State_On;
    }
}

} // namespace ORVTListview
