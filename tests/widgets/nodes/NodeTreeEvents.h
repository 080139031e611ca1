#pragma once

#include "widgets/nodes/NodeTree.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <utility>

// The events of a tree but drag and drop and mouse moves, as text, in order. For
// whatever has the signals of a NodeTree.
template <typename Tree>
class NodeTreeEvents : public QObject
{
public:
    explicit NodeTreeEvents(Tree *tree)
    {
        using namespace ORVTListview;
        using namespace Qt::StringLiterals;
        const auto note = [this](const QString &event) { log.append(event); };
        const auto ofNode = [note](const QString &name) {
            return [note, name](const Node *node) {
                note(name + u' ' + (node ? node->Key() : u"-"_s));
            };
        };
        connect(tree, &Tree::Click, this, ofNode(u"Click"_s));
        connect(tree, &Tree::DblClick, this, ofNode(u"DblClick"_s));
        connect(tree, &Tree::Collapse, this, ofNode(u"Collapse"_s));
        connect(tree, &Tree::Expand, this, ofNode(u"Expand"_s));
        connect(tree, &Tree::NodeClick, this, ofNode(u"NodeClick"_s));
        connect(tree, &Tree::NodeCheck, this, [note](const Node *node) {
            note(u"NodeCheck %1 %2"_s.arg(node->Key()).arg(node->Checked()));
        });
        const auto ofKey = [note](const QString &name) {
            return [note, name](qint16 &code, qint16 shift) {
                note(u"%1 %2 %3"_s.arg(name).arg(code).arg(shift));
            };
        };
        connect(tree, &Tree::KeyDown, this, ofKey(u"KeyDown"_s));
        connect(tree, &Tree::KeyUp, this, ofKey(u"KeyUp"_s));
        connect(tree, &Tree::KeyPress, this,
                [note](qint16 &code) { note(u"KeyPress %1"_s.arg(code)); });
        const auto ofMouse = [note](const QString &name) {
            return [note, name](qint16 button, qint16 shift, float, float) {
                note(u"%1 %2 %3"_s.arg(name).arg(button).arg(shift));
            };
        };
        connect(tree, &Tree::MouseDown, this, ofMouse(u"MouseDown"_s));
        connect(tree, &Tree::MouseUp, this, ofMouse(u"MouseUp"_s));
        connect(tree, &Tree::BeforeLabelEdit, this,
                [note](qint16 &) { note(u"BeforeLabelEdit"_s); });
        connect(tree, &Tree::AfterLabelEdit, this,
                [note](qint16 &, QString &text) { note(u"AfterLabelEdit "_s + text); });
    }

    QString take() { return std::exchange(log, {}).join(QStringLiteral(", ")); }

    QStringList log;
};
