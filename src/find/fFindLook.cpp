// How the find dialog looks: its controls, texts, sizes and its place on the screen.

#include "base/ThreadState.h"
#include "find/HistoryField.h"
#include "find/fFind.h"
#include "find/rules/DialogPlace.h"
#include "shared/texts/AccessKeys.h"
#include "shared/texts/TextRoutine.h"
#include "shared/texts/TextTable.h"
#include "widgets/look/Twips.h"

#include <QtCore/QEvent>
#include <QtGui/QScreen>
#include <QtGui/QTextCursor>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// In twips.
struct ModeSizes
{
    int frameTop;
    int heightAboveStatus;
};
constexpr ModeSizes findSizes{500, 2100};
constexpr ModeSizes replaceSizes{1000, 2600};

constexpr int margin = 6; // pixels
constexpr int topMargin = 4;
constexpr int gap = 6;
constexpr int usualWidth = 400;

template <typename Widget, std::size_t count>
void make(std::array<Widget *, count> &widgets, const QString &name, QWidget *parent)
{
    for (std::size_t i = 0; i < count; ++i) {
        widgets[i] = new Widget(parent);
        widgets[i]->setObjectName(name + QString::number(i));
    }
}

// The marked letter is drawn by itself, without the kerning that the size hint has.
int drawnWidth(const QLabel &label)
{
    constexpr int rounding = 3;
    const QFontMetrics metrics = label.fontMetrics();
    const QString caption = label.text();
    const qsizetype letter = caption.indexOf(u'&') + 1;
    const int apart = metrics.horizontalAdvance(caption.first(std::max<qsizetype>(letter - 1, 0))) +
                      metrics.horizontalAdvance(caption.mid(letter, 1)) +
                      metrics.horizontalAdvance(caption.mid(letter + 1));
    return std::max(label.sizeHint().width(), apart + rounding);
}

// The match as it stands on the screen.
QRect selectionOnScreen(const RichTextBox &box)
{
    QTextCursor start = box.textCursor();
    QTextCursor end = start;
    start.setPosition(start.selectionStart());
    end.setPosition(end.selectionEnd());
    const QRect first = box.cursorRect(start);
    const QRect last = box.cursorRect(end);
    QRect lines = first | last;
    if (first.top() != last.top()) {
        lines.setLeft(0);
        lines.setRight(box.viewport()->width());
    }
    const QRect shown = lines & box.viewport()->rect();
    return {box.viewport()->mapToGlobal(shown.topLeft()), shown.size()};
}

} // namespace

void fFind::makeControls()
{
    setObjectName(u"fFind"_s);
    make(m_lbl, u"lbl"_s, this);
    make(m_Cbo, u"Cbo"_s, this);
    m_Frame1 = new QFrame(this);
    m_Frame1->setObjectName(u"Frame1"_s);
    m_Frame1->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    make(m_Chk, u"Chk"_s, m_Frame1);
    make(m_Cmd, u"Cmd"_s, this);
    m_StatusBar1 = new QStatusBar(this);
    m_StatusBar1->setObjectName(u"StatusBar1"_s);
    m_StatusBar1->setSizeGripEnabled(false);
    for (std::size_t i = 0; i < m_Cbo.size(); ++i) {
        HistoryField::make(*m_Cbo[i]);
        m_lbl[i]->setBuddy(m_Cbo[i]);
    }
    m_Cmd[0]->setDefault(true);
}

void fFind::layOut()
{
    m_fields = new QGridLayout;
    m_fields->setContentsMargins(0, topMargin, 0, 0);
    m_fields->setSpacing(gap);
    for (int i = 0; i < 2; ++i) {
        m_fields->addWidget(m_lbl[static_cast<std::size_t>(i)], i, 0);
        m_fields->addWidget(m_Cbo[static_cast<std::size_t>(i)], i, 1);
    }
    auto *options = new QVBoxLayout(m_Frame1);
    options->setContentsMargins(2 * margin, margin, 2 * margin, margin);
    for (QCheckBox *option : m_Chk)
        options->addWidget(option);
    options->addStretch(1);

    auto *left = new QVBoxLayout;
    left->setSpacing(0);
    left->addLayout(m_fields);
    left->addWidget(m_Frame1, 1);
    left->addSpacing(margin);
    auto *body = new QHBoxLayout;
    body->setContentsMargins(2 * margin, 0, 2 * margin, 0);
    body->setSpacing(2 * margin);
    body->addLayout(left, 1);
    body->addLayout(buttonColumn());
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addLayout(body, 1);
    whole->addWidget(m_StatusBar1);
}

QLayout *fFind::buttonColumn()
{
    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, topMargin, 0, margin);
    column->setSpacing(gap);
    for (QPushButton *button : m_Cmd)
        column->addWidget(button);
    column->addStretch(1);
    return column;
}

void fFind::InitStrings()
{
    runTextRoutine(TextRoutine::findDialog, [this] {
        const QStringList captions{Localise(u"Find What"_s),
                                   Localise(u"Replace With"_s),
                                   Localise(u"Find Next"_s),
                                   Localise(u"Close"_s),
                                   Localise(u"Replace"_s),
                                   Localise(u"Replace All"_s),
                                   Localise(u"Find Whole Word Only"_s),
                                   Localise(u"Match Case"_s),
                                   Localise(u"..."_s)};
        const QStringList keyed = withAccessKeys(captions); // of both modes, so that none moves
        for (std::size_t i = 0; i < m_lbl.size(); ++i) {
            const auto at = static_cast<qsizetype>(i);
            m_lbl[i]->setText(keyed[at]);
            m_Cbo[i]->setAccessibleName(captions[at]);
            m_Chk[i]->setText(keyed[6 + at]);
        }
        m_Cmd[0]->setText(keyed[2]);
        m_Cmd[1]->setText(keyed[3]);
        m_Cmd[3]->setText(keyed[5]);
        m_Cmd[2]->setAccessibleName(captions[4]); // also when it shows dots only
        m_replaceCaptions = {keyed[8], keyed[4]};
        m_Chk[0]->setToolTip(
            Localise(u"Searches for the full word by itself and not as part of a larger word."_s));
        m_Chk[1]->setToolTip(Localise(u"Finds all occurrences with the exact combination of "
                                      "uppercase and lowercase letters specified in the Find "
                                      "What box."_s));
    });
    showMode();
    showResult();
}

void fFind::ReInitializeStrings()
{
    threadPart<TextTable>().refresh();
    InitStrings();
}

void fFind::showMode()
{
    m_lbl[1]->setVisible(isReplaceMode());
    m_Cbo[1]->setVisible(isReplaceMode());
    m_Cmd[3]->setVisible(isReplaceMode());
    setWindowTitle(isReplaceMode() ? Localise(u"Replace"_s) : Localise(u"Find"_s));
    arrange();
}

// Heights are those of the mode, unless a larger font needs more. Widths are those
// of both modes.
void fFind::arrange()
{
    reserveWidths();
    const ModeSizes sizes = isReplaceMode() ? replaceSizes : findSizes;
    constexpr int filler = 2; // the row of the grid below the fields
    m_fields->setRowMinimumHeight(filler, 0);
    const int frameTop = Twips::toPixelsY(sizes.frameTop, *this);
    m_fields->setRowMinimumHeight(filler, std::max(0, frameTop - m_fields->minimumSize().height()));

    const int statusHeight = m_StatusBar1->sizeHint().height();
    m_StatusBar1->setFixedHeight(statusHeight);
    const int height = statusHeight + Twips::toPixelsY(sizes.heightAboveStatus, *this);
    layout()->invalidate();
    layout()->activate(); // asks every control anew
    const QSize needed = layout()->totalMinimumSize();
    setFixedHeight(std::max(height, needed.height()));
    setMinimumWidth(needed.width());
    layout()->activate();
}

void fFind::reserveWidths()
{
    int buttonWidth = 0;
    m_Cmd[2]->setText(m_replaceCaptions[1]); // the longer one
    for (const QPushButton *button : m_Cmd)
        buttonWidth = std::max(buttonWidth, button->sizeHint().width());
    for (QPushButton *button : m_Cmd)
        button->setMinimumWidth(buttonWidth);
    m_Cmd[2]->setText(m_replaceCaptions[isReplaceMode() ? 1 : 0]);
    m_fields->setColumnMinimumWidth(0, std::max(drawnWidth(*m_lbl[0]), drawnWidth(*m_lbl[1])));
    m_StatusBar1->setMinimumWidth(statusWidth());
}

// Of the longest result, in a program of a million lines.
int fFind::statusWidth() const
{
    const QString digits = u" 0000000"_s;
    const QString found = Localise(u"Found in"_s) + u' ' + Localise(u"Row:"_s) + digits +
                          Localise(u", Col:"_s) + digits;
    const QString replaced = digits + u' ' + Localise(u"replace(s)!"_s);
    int width = 0;
    for (const QString &result : {found, replaced, Localise(u"Not found!"_s)})
        width = std::max(width, m_StatusBar1->fontMetrics().horizontalAdvance(result));
    return width + 4 * margin;
}

void fFind::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (m_fields && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange))
        arrange();
}

void fFind::showEvent(QShowEvent *event)
{
    arrange();
    if (!m_isPlaced)
        resize(std::max(minimumWidth(), usualWidth), height());
    if (const RichTextBox *box = m_search.box(); box && !m_isPlaced) {
        const QRect window = box->window()->frameGeometry();
        move(window.center() - rect().center());
    }
    m_isPlaced = true;
    stayClear();
    QDialog::showEvent(event);
}

void fFind::stayClear()
{
    const RichTextBox *box = m_search.box();
    if (!box)
        return;
    const QRect place =
        dialogPlace(frameGeometry(), selectionOnScreen(*box), box->screen()->availableGeometry());
    if (place != frameGeometry())
        move(place.topLeft());
}

} // namespace ORVTListview
