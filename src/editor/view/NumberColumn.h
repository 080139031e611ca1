#pragma once

#include "editor/view/EditorMargin.h"

namespace ORVTListview {

// The numbers of the lines, from 1; that of the caret's line stands out.
class NumberColumn final : public QObject, public MarginColumn
{
    Q_OBJECT

public:
    NumberColumn(QPlainTextEdit &box, EditorMargin &margin, BoxLayers &layers);

    bool isShown() const { return m_isShown; }
    void setShown(bool on);

    int width() const override;
    void paint(QPainter &painter, const ShownLine &line, const QRect &cell) override;

private:
    void followCaret();
    void noteLineCount();

    QPlainTextEdit &m_box;
    EditorMargin &m_margin;
    BoxLayers &m_layers;
    bool m_isShown = false;
    int m_digits = 0;
    int m_caretLine = 0;
};

} // namespace ORVTListview
