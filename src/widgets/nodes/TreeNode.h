#pragma once

#include "widgets/look/Colours.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <memory>
#include <vector>

namespace ORVTListview {

class HandedOut;

// A node as the model keeps it, with the handle that was given out for it, if any.
// Dying, it tells the handle.
struct TreeNode
{
    TreeNode() = default;
    ~TreeNode();
    Q_DISABLE_COPY_MOVE(TreeNode) // handles, keys and indexes point to it

    bool isWithin(const TreeNode &other) const; // itself counts

    QString key;
    QString text;
    QString image;
    QVariant tag;
    qint32 foreColor = Colours::windowText;
    bool checked = false;
    bool expanded = false; // the view has it only of nodes with children

    TreeNode *parent = nullptr; // null for the invisible root alone
    int row = 0;                // among the parent's children
    int position = 0;           // ask NodeModel::positionOf instead
    std::vector<std::unique_ptr<TreeNode>> children;
    HandedOut *handle = nullptr;
};

} // namespace ORVTListview
