#pragma once

#include "widgets/box/BoxLayers.h"

#include <memory>
#include <utility>

class QPlainTextEdit;

namespace ORVTListview {

// A layer that shows something about the place of the caret. What it shows is a value
// that knows which lines it touches; an empty one touches none.
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

    // The lines that either touches, what was shown or what is, are painted again.
    template <typename Marks>
    void show(Marks &shown, Marks marks)
    {
        if (marks == shown)
            return;
        const Marks former = std::exchange(shown, std::move(marks));
        if (layers())
            layers()->updateLines([&](const QTextBlock &line) {
                return shown.touches(line) || former.touches(line);
            });
    }

    QPlainTextEdit &m_box;
};

// The line of the caret on a ground of its own, over the whole width, while nothing is
// selected beyond it.
std::unique_ptr<CaretLayer> currentLineLayer(QPlainTextEdit &box, BoxLayers &layers);

// Marks the bracket at the caret and its partner, and the IF, ELSE or ENDIF at the
// caret and what belongs to it, in the margin too. What misses its partner looks wrong.
std::unique_ptr<CaretLayer> pairLayer(QPlainTextEdit &box, BoxLayers &layers);

// Marks, faintly, where else the word at the caret stands among the lines shown, once
// the caret has rested. Words are compared without regard to case; comments have none,
// and numbers, operators and IF, ELSE and ENDIF are passed over.
std::unique_ptr<CaretLayer> wordUseLayer(QPlainTextEdit &box, BoxLayers &layers);

} // namespace ORVTListview
