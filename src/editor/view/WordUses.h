#pragma once

#include "widgets/box/BoxLayers.h"

#include <QtCore/QTimer>

class QPlainTextEdit;

namespace ORVTListview {

// Marks, faintly, where else the word at the caret stands among the lines shown, once
// the caret has rested. Words are compared without regard to case; comments have none,
// and numbers, operators and IF, ELSE and ENDIF are passed over.
class WordUses final : public QObject, public BoxLayer
{
    Q_OBJECT

public:
    WordUses(QPlainTextEdit &box, BoxLayers &layers);

    void setOn(bool on);

    void paintBelow(QPainter &painter, const ShownLines &lines) override;

private:
    QString wordAtCaret() const;
    void follow();
    void show(const QString &word);

    QPlainTextEdit &m_box;
    QTimer *const m_rest; // the box's, named WordRest
    QString m_word;       // as it stands at the caret; empty while none is marked
};

} // namespace ORVTListview
