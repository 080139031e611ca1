#include "editor/MatchingWords.h"

#include "base/TextRules.h"
#include "editor/rules/language/PopupWords.h"
#include "shared/texts/TextTable.h"
#include "widgets/look/TextWidths.h"
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QtMath>
#include <QtGui/QAccessible>
#include <QtGui/QFontMetricsF>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QListView>

#include <algorithm>
#include <array>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostDescriptionLetters = 40;

constexpr std::array kinds{WordClass::Variable, WordClass::Constant, WordClass::Input,
                           WordClass::Output,   WordClass::Nvi,      WordClass::Keyword,
                           WordClass::Function};

template <typename Texts>
int widestOf(const Texts &texts, const QFont &font)
{
    TextWidths widths(font);
    int widest = 0;
    for (const QString &text : texts)
        widths.widen(widest, text);
    return widest > 0 ? widest + 1 : 0; // what is a part of a pixel too wide would be cut
}

QStringList textsOf(const QAbstractItemModel &entries)
{
    QStringList texts;
    for (int i = 0; i < entries.rowCount(); ++i)
        texts.append(entries.index(i, 0).data().toString());
    return texts;
}

} // namespace

MatchingWords::MatchingWords(ReportList &list, const PopupWords &words)
    : WordListFace(list, words)
    , m_model(*list.model(), {[this](const QString &text) { return kindOf(text); },
                              [this](const QString &text) { return descriptionOf(text); }})
{
}

MatchingWords::~MatchingWords()
{
    delete m_view; // it knows the model
}

void MatchingWords::makeView()
{
    m_view = new QListView(list().parentWidget());
    m_view->setObjectName(u"WordMatches"_s);
    m_view->setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint);
    m_view->setAttribute(Qt::WA_ShowWithoutActivating);
    m_view->setFocusPolicy(Qt::NoFocus);
    m_view->setFrameStyle(int{QFrame::Box} | int{QFrame::Plain});
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setUniformItemSizes(true);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setItemDelegate(&m_delegate);
    m_view->setModel(&m_model);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) { selectEntryOf(current.row()); });
    // Later: who takes a word may destroy the view.
    connect(m_view, &QListView::doubleClicked, this, &MatchingWords::doubleClicked,
            Qt::QueuedConnection);
    forgetWidths(); // it has another font
}

QAbstractItemView &MatchingWords::view()
{
    if (!m_view)
        makeView();
    return *m_view;
}

bool MatchingWords::show(const QString &word)
{
    m_model.show(word);
    return m_model.isMore();
}

void MatchingWords::choose()
{
    const QString first = m_model.index(0).data().toString();
    const bool begins = matchedLetters(first, m_model.word()).start == 0;
    const bool isChosen = !m_model.word().isEmpty() && m_model.isMatched() && (begins || m_isAsked);
    mark(isChosen ? 0 : -1);
    if (!isChosen)
        view().scrollToTop();
}

// The user has moved to the row: screen readers tell it, though the focus is elsewhere.
void MatchingWords::choose(int row)
{
    mark(row);
    if (!QAccessible::isActive() || chosen() < 0)
        return;
    QAccessibleEvent marked(m_view, QAccessible::Focus);
    marked.setChild(chosen());
    QAccessible::updateAccessibility(&marked);
}

void MatchingWords::mark(int row)
{
    view().setCurrentIndex(m_model.index(row));
    selectEntryOf(row);
}

void MatchingWords::selectEntryOf(int row)
{
    selectInList(m_model.entryOf(row));
}

int MatchingWords::chosen() const
{
    return m_view ? m_view->currentIndex().row() : -1;
}

QString MatchingWords::kindOf(const QString &text) const
{
    const qsizetype place = known().find(text);
    return place < 0 ? QString() : Localise(nameOf(known().words()[place].wordClass));
}

QString MatchingWords::descriptionOf(const QString &text) const
{
    return m_descriptions.isEmpty() ? QString() : m_descriptions.value(foldedCase(text));
}

void MatchingWords::setDescriptions(const QHash<QString, QString> &descriptions)
{
    m_descriptions.clear();
    for (auto word = descriptions.begin(); word != descriptions.end(); ++word)
        m_descriptions.insert(foldedCase(word.key()), word.value());
    forgetWidths();
}

void MatchingWords::measure()
{
    const QFont font = list().font();
    const int letter = QFontMetrics(font).averageCharWidth();
    view().setFont(font);
    m_widths.icon = list().style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &list());
    m_widths.text = limited(widestOf(textsOf(*list().model()), MatchDelegate::strong(font)));
    m_widths.description =
        std::min(widestOf(m_descriptions, font), mostDescriptionLetters * letter);
}

int MatchingWords::rowWidth()
{
    view().setPalette(list().palette());
    view().setAccessibleName(Localise(u"Known words"_s)); // in the language of now
    const QFontMetricsF metrics(list().font());
    m_widths.kind = 0;
    for (const WordClass kind : kinds) {
        const qreal width = metrics.horizontalAdvance(Localise(nameOf(kind)));
        m_widths.kind = std::max(m_widths.kind, qCeil(width) + 1);
    }
    m_widths.row = rowHeight();
    m_delegate.setWidths(m_widths);
    return m_delegate.rowWidth();
}

} // namespace ORVTListview
