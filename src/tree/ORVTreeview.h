#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/IndexedName.h>
#include <ORVTListview/PointCollection.h>

#include <QtWidgets/QWidget>

namespace ORVTListview {

// The navigation tree of a controller project, and the keeper of the vocabulary
// that the code editors of its thread share.
class ORVT_EXPORT ORVTreeview : public QWidget
{
    Q_OBJECT

public:
    explicit ORVTreeview(QWidget *parent = nullptr);
    ~ORVTreeview() override;

    // Hands the project's points to all components of this thread. The form and
    // the collections are kept by reference and may be null; the host owns them
    // and may destroy them at any time. Refill the word index afterwards
    // (ORVListView::RefillListviewWithWordList).
    Q_INVOKABLE void SetCollectionRenamable(QWidget *fParent,
                                            ORVTListview::PointCollection *ColVars,
                                            ORVTListview::PointCollection *ColConsts,
                                            ORVTListview::PointCollection *ColInputs,
                                            ORVTListview::PointCollection *ColOutputs,
                                            ORVTListview::PointCollection *ColNvis);

    // Families of numbered names, kept by reference; null for none. They become
    // reserved words, and the word index is refilled. Raises Error (Overflow) and
    // changes nothing when a family has more than 100,000 names.
    Q_INVOKABLE void setStringIndexCollection(ORVTListview::IndexedNameCollection *Names);

    // See ORVListView::setIsSqrtSupported.
    Q_INVOKABLE void setIsSqrtSupported(const QString &Value);
};

} // namespace ORVTListview
