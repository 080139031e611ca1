#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

class QString;

namespace ORVTListview {

class LateColours;
class ProgramText;
class RichTextBox;

// Opens a program whose colours come late.
class ProgramOpening : public QObject
{
    Q_OBJECT

public:
    ProgramOpening(RichTextBox &box, ProgramText &text);

    void open(const QString &text);
    void cancel();

    // Whether lines of it wait for their colours.
    bool isRunning() const;

Q_SIGNALS:
    // From the event loop. 100 is the last one of an opening.
    void progressed(int percent);

private:
    void tell();

    const QPointer<LateColours> m_colours;
    ProgramText &m_text;
    bool m_isToBeTold = false; // that it is over
    int m_serial = 0;          // of the colours
    int m_told = -1;
};

} // namespace ORVTListview
