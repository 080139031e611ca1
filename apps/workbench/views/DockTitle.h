#pragma once

#include <QtWidgets/QWidget>

class QDockWidget;
class QToolButton;

namespace ORVTListview {

// The title bar of a dock, with buttons to float and to close it. It takes no room where it is
// not needed.
class DockTitle : public QWidget
{
    Q_OBJECT

public:
    // Belongs to the dock.
    explicit DockTitle(QDockWidget &dock);

    // Not where a tab has the title already, or the dock is the only one; it is at first.
    void setNeeded(bool isNeeded);

    // Whether the dock is the one that commands are for.
    void setCurrent(bool isCurrent);

    // After a change of language.
    void retranslate();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QToolButton *addButton();
    void follow();
    int buttonsLeft() const;

    QDockWidget &m_dock;
    QToolButton *m_float;
    QToolButton *m_close;
    bool m_isNeeded = true;
};

} // namespace ORVTListview
