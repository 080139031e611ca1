#pragma once

#include "editor/view/CaretLayer.h"

#include <QtCore/QTimer>

namespace ORVTListview {

// Marks, faintly, where else the word at the caret stands among the lines shown, once
// the caret has rested. Words are compared without regard to case; comments have none,
// and numbers, operators and IF, ELSE and ENDIF are passed over.
class WordUses final : public CaretLayer
{
public:
    WordUses(QPlainTextEdit &box, BoxLayers &layers);

    void paintBelow(QPainter &painter, const ShownLines &lines) override;

private:
    QString wordAtCaret() const;
    void follow() override;
    void forget() override;
    void show(const QString &word);

    QTimer *const m_rest; // the box's, named WordRest
    QString m_word;       // as it stands at the caret; empty while none is marked
};

} // namespace ORVTListview
