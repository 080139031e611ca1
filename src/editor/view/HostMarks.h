#pragma once

#include "editor/view/KeptLines.h"
#include <ORVTListview/MarginMark.h>

namespace ORVTListview {

// What a host shows in the margin.
class HostMarks final : public KeptLines
{
    Q_OBJECT

public:
    explicit HostMarks(RichTextBox &box);

    void set(const QList<MarginMark> &marks);
    QList<MarginMark> list() const; // where they are now, from the top

    // The first one of a line that has one, and all texts, a line each.
    QIcon pictureOn(const QTextBlock &line) const;
    QString textOn(const QTextBlock &line) const;

private:
    QList<MarginMark> m_given;
};

} // namespace ORVTListview
