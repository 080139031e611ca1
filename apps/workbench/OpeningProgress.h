#pragma once

#include <QtCore/QHash>
#include <QtWidgets/QWidget>

class QProgressBar;
class QToolButton;

namespace ORVTListview {

class CodeView;

// How far the programs that are being opened have their colours, with a way to give it up.
// Shown only while that takes its time.
class OpeningProgress : public QWidget
{
    Q_OBJECT

public:
    explicit OpeningProgress(QWidget *parent = nullptr);

    // A program that may be opened.
    void add(CodeView &view);

    void retranslate();

private:
    void follow();
    void cancel();

    QHash<CodeView *, int> m_percents; // of those that are being opened
    QProgressBar *m_bar;
    QToolButton *m_cancel;
};

} // namespace ORVTListview
