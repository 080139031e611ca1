#pragma once

#include "base/SharedText.h"
#include "editor/SettledLines.h"

#include <QtCore/QList>

namespace ORVTListview {

class BoxText;

// A text that stands for that of a box, line for line: coloured, its settled lines are what
// the box shows. The others are in it as they are shown.
class StepSource
{
public:
    StepSource() = default;
    virtual ~StepSource() = default;
    Q_DISABLE_COPY_MOVE(StepSource) // an interface

    virtual const SharedText &text() const = 0;
    virtual int lineCount() const = 0;
    virtual int lineOf(qsizetype position) const = 0;
    virtual qsizetype lineStart(int line) const = 0;

    // Without the line end behind it.
    qsizetype lineEnd(int line) const;
    bool hasWord(int line) const; // anything but blanks and tabs
};

// What is shown stands for itself, where colouring it once more changes nothing.
class ShownSource final : public StepSource
{
public:
    explicit ShownSource(const BoxText &box)
        : m_box(box)
    {
    }

    const SharedText &text() const override;
    int lineCount() const override;
    int lineOf(qsizetype position) const override;
    qsizetype lineStart(int line) const override;

private:
    const BoxText &m_box;
};

// The text that was coloured, with the lines that have changed in the box since.
class FormerSource final : public StepSource
{
public:
    FormerSource(const SharedText &former, const BoxText &box, const SettledLines &settled);

    const SharedText &text() const override { return m_text; }
    int lineCount() const override { return static_cast<int>(lineStarts().size()); }
    int lineOf(qsizetype position) const override;
    qsizetype lineStart(int line) const override { return lineStarts()[line]; }

private:
    const QList<qsizetype> &lineStarts() const;

    SharedText m_text;
    mutable QList<qsizetype> m_starts; // none before they are asked for
};

} // namespace ORVTListview
