#pragma once

#include <QtWidgets/QWidget>

class QProgressBar;
class QToolButton;

namespace ORVTListview {

class CodeView;

// How far the program that is being opened has its colours, with a way to give it up.
// Shown only while that takes its time.
class OpeningProgress : public QWidget
{
    Q_OBJECT

public:
    explicit OpeningProgress(CodeView &view, QWidget *parent = nullptr);

    void retranslate();

private:
    void follow(int percent);

    QProgressBar *m_bar;
    QToolButton *m_cancel;
};

} // namespace ORVTListview
