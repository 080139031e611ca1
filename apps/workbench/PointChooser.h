#pragma once

#include <ORVTListview/Types.h>

#include <QtWidgets/QToolBar>

class QActionGroup;

namespace ORVTListview {

class ImageList;
class ORVDataCombo;

// A tool bar with the points of one kind: four buttons choose the kind, the combo
// the point.
class PointChooser : public QToolBar
{
    Q_OBJECT

public:
    explicit PointChooser(QWidget *parent);

    // Those of the kinds.
    void setPictures(const ImageList &pictures);

    // Shows the points of a kind, and puts the focus there. Nothing for what is no kind.
    void choose(LwType type);

    // Those there are.
    static QList<LwType> types();

    // The points have changed.
    void refill();

    // After a change of language.
    void retranslate();

Q_SIGNALS:
    void chosen(ORVTListview::LwType type, const QString &name);

    // The points could not be had.
    void told(const QString &text);

private:
    LwType kind() const;

    QActionGroup *m_kinds;
    ORVDataCombo *m_points;
};

} // namespace ORVTListview
