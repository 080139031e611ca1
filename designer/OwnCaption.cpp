#include "OwnCaption.h"

#include "shared/texts/TextTable.h"
#include <ORVTListview/ORVListView.h>

using namespace ORVTListview;

OwnCaption::OwnCaption(ORVListView &list)
    : QObject(&list)
    , m_list(list)
    , m_type(list.ListviewType())
{
    connect(&list, &ORVListView::captionChanged, this, &OwnCaption::noteCaption);
    connect(&list, &ORVListView::listviewTypeChanged, this, &OwnCaption::noteType);
}

// A type brings its name before it is told of itself. The same name given back by
// undoing is none of the form's own.
void OwnCaption::noteCaption()
{
    if (m_list.ListviewType() == m_type)
        m_caption = m_list.Caption() == Localise(m_list.Key()) ? QString() : m_list.Caption();
}

void OwnCaption::noteType()
{
    m_type = m_list.ListviewType();
    if (!m_caption.isEmpty())
        m_list.setCaption(m_caption);
}
