#pragma once

#include "widgets/box/BoxLayers.h"

class QPlainTextEdit;

namespace ORVTListview {

// A layer that shows something about the place of the caret.
class CaretLayer : public QObject, public BoxLayer
{
    Q_OBJECT

public:
    // Follows the caret while it is on.
    void setOn(bool on);

protected:
    CaretLayer(QPlainTextEdit &box, BoxLayers &layers, int order);

    virtual void follow() = 0; // the caret, the selection or the text has changed
    virtual void forget() = 0; // the layer is switched off

    QPlainTextEdit &m_box;
};

} // namespace ORVTListview
