#pragma once

#include "editor/view/ChangedPart.h"
#include "widgets/box/BoxLayers.h"

#include <QtCore/QObject>

class QPlainTextEdit;

namespace ORVTListview {

// Thin lines down the indents of the lines, one at each tab stop; a blank line has those
// that the lines around it share.
class IndentGuides final : public QObject, public BoxLayer
{
    Q_OBJECT

public:
    IndentGuides(QPlainTextEdit &box, BoxLayers &layers);

    void setOn(bool on);

    void paintBelow(QPainter &painter, const ShownLines &lines) override;

private:
    void followChange();

    QPlainTextEdit &m_box;
    ChangedPart m_changed;
};

} // namespace ORVTListview
