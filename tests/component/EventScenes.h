#pragma once

#include "EventUser.h"

#include "widgets/combo/ImageCombo.h"
#include "widgets/nodes/NodeTree.h"

#include <ORVTListview/ORVTListview.h>

#include <QtCore/QPointer>
#include <QtWidgets/QLineEdit>

#include <functional>
#include <memory>

// A shown control whose events a host listens to, and what a host may do in them.
// Parts that a scene has none of are null.
struct EventScene
{
    EventScene();
    ~EventScene() { delete window; }
    Q_DISABLE_COPY_MOVE(EventScene) // receivers know it

    void show();
    QLineEdit *labelField() const; // while a label is edited

    QPointer<QWidget> window = new QWidget;
    QPointer<QWidget> control;
    QPointer<ORVTListview::ORVListView> listView;
    QPointer<ORVTListview::ReportList> list;
    QPointer<ORVTListview::NodeTree> tree;
    QPointer<ORVTListview::RichTextBox> box;
    QPointer<ORVTListview::ImageCombo> combo;
    std::function<void()> clear;
    std::function<void()> changeType; // else builds it anew
    EventUser user;

    // What stands behind the combos.
    ORVTListview::ImageList pictures;
    ORVTListview::PointList points;
    std::unique_ptr<ORVTListview::ORVTreeview> project;
};

// One way in which an event comes about.
struct EventSource
{
    const char *event;
    const char *by;
    std::function<void(EventScene &)> provoke;
};

// A control, or a widget inside one, and every source of its events.
struct EventSubject
{
    const char *name;
    std::function<std::unique_ptr<EventScene>()> make;
    std::function<QObject *(const EventScene &)> raiser;
    QList<EventSource> sources;
    bool mayBeDestroyed = true; // not in the toolkit's own signals
};

namespace EventScenes {

std::unique_ptr<EventScene> pointTable();
std::unique_ptr<EventScene> codeEditor();
std::unique_ptr<EventScene> projectTree();
std::unique_ptr<EventScene> dataCombo();
std::unique_ptr<EventScene> reportList();
std::unique_ptr<EventScene> nodeTree();
std::unique_ptr<EventScene> richTextBox();
std::unique_ptr<EventScene> imageCombo();

} // namespace EventScenes

const QList<EventSubject> &eventSubjects();

// Those of the parts of controls, which are among them.
QList<EventSubject> innerEventSubjects();
