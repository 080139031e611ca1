#include "editor/ProgramOpening.h"

#include "editor/ProgramText.h"
#include "widgets/box/LateColours.h"
#include <ORVTListview/RichTextBox.h>

#include <algorithm>

namespace ORVTListview {

ProgramOpening::ProgramOpening(RichTextBox &box, ProgramText &text)
    : m_colours(&LateColours::of(*box.document()))
    , m_text(text)
{
    connect(m_colours, &LateColours::progressed, this, &ProgramOpening::tell);
}

void ProgramOpening::open(const QString &text)
{
    const QPointer<ProgramOpening> self(this); // Change is the host's
    const LateColours::Allowed late(*m_colours, LateColours::Lines::New);
    m_text.openProgram(text);
    if (!self)
        return;
    m_serial = std::max(m_serial, late.serial()); // in Change, the host may have opened another
    m_told = -1;
    m_isToBeTold = true;
    if (!isRunning()) // a short one, or another text since
        QMetaObject::invokeMethod(this, &ProgramOpening::tell, Qt::QueuedConnection);
}

void ProgramOpening::cancel()
{
    if (isRunning())
        m_colours->stop();
}

bool ProgramOpening::isRunning() const
{
    return m_isToBeTold && m_colours && m_colours->areWaiting() && m_colours->serial() == m_serial;
}

void ProgramOpening::tell()
{
    if (!m_isToBeTold)
        return;
    m_isToBeTold = isRunning();
    const int percent = m_isToBeTold ? m_colours->percentDone() : 100;
    if (percent == m_told)
        return;
    m_told = percent;
    Q_EMIT progressed(percent);
}

} // namespace ORVTListview
