#pragma once

#include <ORVTListview/Types.h>

#include <QtWidgets/QPlainTextEdit>

namespace ORVTListview {

// A few lines of a program with words of every class, as the editor would show them.
class ColourPreview : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ColourPreview(QWidget *parent);

    void show(const RichTextSettings &settings);
};

} // namespace ORVTListview
