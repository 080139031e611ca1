#include "editor/view/CaretLineAccess.h"

#include "editor/view/Folds.h"
#include "editor/view/HostMarks.h"
#include "editor/view/LiveValues.h"
#include "editor/view/NumberColumn.h"
#include "editor/view/Problems.h"
#include "shared/texts/TextTable.h"

#include <QtCore/QStringList>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtWidgets/QPlainTextEdit>

namespace ORVTListview {

using namespace Qt::StringLiterals;

CaretLineAccess::CaretLineAccess(QPlainTextEdit &box, const Sources &sources)
    : m_box(box)
    , m_sources(sources)
{
    connect(&sources.problems, &Problems::changed, this, &CaretLineAccess::refresh);
    connect(&sources.hostMarks, &HostMarks::changed, this, &CaretLineAccess::refresh);
    connect(&sources.folds, &Folds::changed, this, &CaretLineAccess::refresh);
    connect(&sources.values, &LiveValues::changed, this, &CaretLineAccess::refresh);
}

bool CaretLineAccess::isNeeded() const
{
    return m_sources.numbers.isShown() || m_sources.folds.isOn() || m_sources.problems.isShown() ||
           !m_sources.hostMarks.isEmpty() || m_sources.values.isShown();
}

void CaretLineAccess::refresh()
{
    const bool isNeededNow = isNeeded();
    if (isNeededNow && !m_isFollowing)
        connect(&m_box, &QPlainTextEdit::cursorPositionChanged, this, &CaretLineAccess::tell);
    else if (!isNeededNow && m_isFollowing)
        m_box.disconnect(this);
    if (isNeededNow || m_isFollowing)
        tell();
    m_isFollowing = isNeededNow;
}

QString CaretLineAccess::lineText() const
{
    const QTextBlock line = m_box.textCursor().block();
    QStringList texts;
    if (m_sources.numbers.isShown())
        texts << Localise(u"Line %1"_s).arg(line.blockNumber() + 1);
    if (const int hidden = m_sources.folds.hiddenBehind(line); hidden > 0)
        texts << Localise(u"%1 lines hidden"_s).arg(hidden);
    if (const QString problems = m_sources.problems.textOn(line); !problems.isEmpty())
        texts << problems;
    if (const QString marks = m_sources.hostMarks.textOn(line); !marks.isEmpty())
        texts << marks;
    if (const QString values = m_sources.values.textOn(line); !values.isEmpty())
        texts << values;
    return texts.join(u'\n');
}

// A number is told on every line, so that it must not hide what the host says.
void CaretLineAccess::tell()
{
    const QString said = m_box.accessibleDescription();
    if (m_told.isEmpty() || said != m_told)
        m_description = said;
    const QString text = lineText();
    const bool isBeside = m_sources.numbers.isShown() && !m_description.isEmpty();
    m_told = isBeside && !text.isEmpty() ? m_description + u'\n' + text : text;
    const QString wanted = m_told.isEmpty() ? m_description : m_told;
    if (said != wanted)
        m_box.setAccessibleDescription(wanted);
}

} // namespace ORVTListview
