#include "pointtable/PointTable.h"

#include "base/EventGuard.h"
#include "base/ThreadState.h"
#include "pointtable/rules/ColumnLayouts.h"
#include "pointtable/rules/TableLayout.h"
#include "shared/points/DisplayNames.h"
#include "shared/texts/TextRoutine.h"
#include "shared/texts/TextTable.h"
#include "shared/texts/ToldFailure.h"
#include "widgets/list/ReportHeader.h"
#include "widgets/look/ElidedLabel.h"
#include "widgets/look/PictureBox.h"
#include "widgets/look/PictureButton.h"
#include "widgets/look/Pictures.h"
#include "widgets/look/Twips.h"
#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QEvent>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// Edge by edge, so that what meets in twips meets in pixels.
QRect inPixels(const QRectF &twips, const QWidget &widget)
{
    const QPoint topLeft(Twips::toPixelsX(twips.left(), widget),
                         Twips::toPixelsY(twips.top(), widget));
    const QPoint end(Twips::toPixelsX(twips.right(), widget),
                     Twips::toPixelsY(twips.bottom(), widget));
    return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

} // namespace

PointTable::PointTable(QWidget *host, ReportList &list, const ImageList &images)
    : QObject(host)
    , m_host(*host)
    , m_list(list)
    , m_caption(new ElidedLabel(host))
    , m_read(new PictureButton(images, host))
    , m_write(new PictureBox(images, host))
{
    m_caption->setObjectName(u"LblCaption"_s);
    m_read->setObjectName(u"ImgRead"_s);
    m_write->setObjectName(u"ImgWrite"_s);
    m_caption->lower(); // the pictures lie on it
    m_caption->installEventFilter(this);
    connect(m_read, &PictureButton::pressedAndReleased, this, [this] {
        LwType type = m_type;
        raiseEvent(*this, &PointTable::QueryRead, type);
    });
    SetImage(false);
    InitStrings();
}

QString PointTable::key() const
{
    return displayName(m_type);
}

void PointTable::switchTo(LwType type)
{
    m_type = type;
    m_list.grid()->setTable(key());
    setCaption(Localise(key()));
    m_read->setPictureKeys(key(), Pictures::pressedKey(key()));
    m_read->setTag(key());
    SetImage(false);
    if (type == dsCode)
        return;
    createColumns();
    if (!m_isWaiting)
        createRows(m_numberItems);
    m_host.update();
}

QWidget &PointTable::captionLabel() const
{
    return *m_caption;
}

QWidget &PointTable::readButton() const
{
    return *m_read;
}

void PointTable::createColumns()
{
    ColumnHeaders &headers = *m_list.ColumnHeaders();
    headers.Clear();
    const QStringList keys = columnKeys(m_type, m_isHOASupported);
    for (const QString &key : keys)
        headers.Add(0, key, columnText(key));
}

void PointTable::createRows(int count)
{
    // The last sub-item is a blank, so that every row reaches the last column.
    QStringList cells(std::max(0, m_list.ColumnHeaders()->Count() - 1));
    if (!cells.isEmpty())
        cells.last() = u" "_s;
    QList<RowContent> rows(std::max(0, count));
    int number = 0;
    for (RowContent &row : rows) {
        ++number;
        row.key = rowKey(key(), number);
        row.text = rowText(number);
        row.subItems = cells;
    }
    m_list.setRows(std::move(rows));
}

void PointTable::ChangeListviewNumber(qint16 New_Count)
{
    const int count = std::max<int>(0, New_Count);
    if (m_type != dsCode && count != m_list.ListItems()->Count())
        createRows(count);
}

void PointTable::UpdateSubItems(const QString &Value, const QString &TagValue, qint16 SubIndex)
{
    if (SubIndex >= 1 && SubIndex < m_list.ColumnHeaders()->Count())
        m_list.UpdateSubItems(Value, TagValue, SubIndex);
}

void PointTable::UpdateListViewWidth(QString &ErrMsg)
{
    tellingFailure(ErrMsg, [this] { m_list.fitColumns(); });
}

void PointTable::SetImage(bool Busy)
{
    m_isBusy = Busy;
    m_write->setPictureKey(Busy ? u"BallRed"_s : u"BallGreen"_s);
    showStatusText();
}

// Also as the tool tip, unless the host has given another one.
void PointTable::showStatusText()
{
    const QString text = Localise(m_isBusy ? u"Busy"_s : u"Idle"_s);
    if (m_write->toolTip() == m_write->accessibleName())
        m_write->setToolTip(text);
    m_write->setAccessibleName(text);
}

QString PointTable::caption() const
{
    return m_caption->text();
}

void PointTable::setCaption(const QString &text)
{
    m_caption->setText(text);
    m_list.setAccessibleName(text);
}

void PointTable::setToolTip(const QString &text, bool isLeftButton)
{
    if (isLeftButton)
        m_read->setToolTip(text);
    else
        m_write->setToolTip(text);
}

void PointTable::setEnabled(bool enabled)
{
    m_caption->setEnabled(enabled);
    m_read->setEnabled(enabled);
    m_write->setEnabled(enabled);
}

// What the provider does not state, or states no more, is as around the caption. A
// font that the host has given it stays while the provider has none.
void PointTable::showFont(const DisplayFontSettings &settings)
{
    const bool isNone = settings.FontName.isEmpty();
    if (isNone && !m_hasOwnFont)
        return;
    m_hasOwnFont = !isNone;
    QFont font;
    if (!isNone) {
        font.setFamily(settings.FontName);
        if (settings.FontSize > 0)
            font.setPointSize(settings.FontSize);
    }
    m_caption->setFont(font);
}

void PointTable::InitStrings()
{
    runTextRoutine(TextRoutine::listView, [this] {
        showFont(threadPart<TextTable>().displayFont());
        const QString text = Localise(u"Click here to read data values"_s);
        m_read->setToolTip(text);
        m_read->setAccessibleName(text);
        showStatusText();
    });
}

void PointTable::translateHeaders()
{
    const ColumnHeaders &headers = *m_list.ColumnHeaders();
    auto *view = qobject_cast<ReportHeader *>(m_list.horizontalHeader()); // or the host's
    for (int index = 1; index <= headers.Count(); ++index) {
        ColumnHeader &header = *headers.Item(index);
        const QString text = columnText(header.Key());
        if (header.Key().isEmpty() || header.Text() == text)
            continue;
        header.setText(text);
        if (view)
            Q_EMIT view->textReplaced(index - 1);
    }
    setCaption(Localise(key()));
}

TableLayout PointTable::layout() const
{
    return layOutTable(Twips::fromPixelsX(m_host.width(), m_host),
                       Twips::fromPixelsY(m_host.height(), m_host),
                       Twips::fromPixelsY(m_caption->fontMetrics().height(), m_host));
}

int PointTable::bodyTop() const
{
    return inPixels(layout().body, m_host).top();
}

QRect PointTable::layOut()
{
    const TableLayout twips = layout();
    const QRect caption = inPixels(twips.caption, m_host);
    const QRect text = inPixels(twips.captionText, m_host);
    m_caption->setGeometry(caption);
    m_caption->setContentsMargins(text.left(), 0, std::max(0, caption.width() - text.right() - 1),
                                  0);
    m_read->setGeometry(inPixels(twips.read, m_host));
    m_write->setGeometry(inPixels(twips.write, m_host));
    return inPixels(twips.body, m_host);
}

bool PointTable::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        Q_EMIT captionHeightChanged();
    return QObject::eventFilter(watched, event);
}

} // namespace ORVTListview
