#include "tree/ORVTreeview.h"

#include "editor/ThreadColouring.h"
#include "editor/Vocabulary.h"
#include "shared/HostForms.h"
#include "shared/ThreadState.h"

namespace ORVTListview {

ORVTreeview::ORVTreeview(QWidget *parent)
    : QWidget(parent)
{
}

ORVTreeview::~ORVTreeview() = default;

void ORVTreeview::SetCollectionRenamable(QWidget *fParent, PointCollection *ColVars,
                                         PointCollection *ColConsts, PointCollection *ColInputs,
                                         PointCollection *ColOutputs, PointCollection *ColNvis)
{
    threadPart<HostForms>().pointOwner = fParent;
    threadPart<Vocabulary>().setCollections({ColVars, ColConsts, ColInputs, ColOutputs, ColNvis});
}

void ORVTreeview::setStringIndexCollection(IndexedNameCollection *Names)
{
    threadPart<Vocabulary>().setIndexedNames(Names);
    refillThreadWordList();
}

void ORVTreeview::setIsSqrtSupported(const QString &Value)
{
    threadPart<Vocabulary>().setIsSqrtSupported(Value);
}

} // namespace ORVTListview
