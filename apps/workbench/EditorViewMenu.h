#pragma once

#include <QtGui/QKeySequence>
#include <QtWidgets/QMenu>

#include <functional>

namespace ORVTListview {

class CodeView;

// What the editor shows beside the text, to be switched on and off.
class EditorViewMenu : public QMenu
{
    Q_OBJECT

public:
    EditorViewMenu(CodeView &view, QWidget *parent);

    // What the workbench begins with.
    static void switchOn(CodeView &view);

private:
    void add(const QString &text, const QKeySequence &keys, const std::function<void()> &command);
    void addSwitch(const QString &text, bool isOn, void (CodeView::*set)(bool));

    CodeView &m_view;
};

} // namespace ORVTListview
