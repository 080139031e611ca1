#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QObject>

namespace ORVTListview {
class ORVListView;
}

// On a form that is being designed a table keeps the caption that it was given,
// whatever type it is changed to, as it does on the saved form, where the caption is
// set after the type. A table without a caption of its own shows its type's name.
class OwnCaption : public QObject
{
    Q_OBJECT

public:
    // Belongs to the list.
    explicit OwnCaption(ORVTListview::ORVListView &list);

private:
    void noteCaption();
    void noteType();

    ORVTListview::ORVListView &m_list;
    ORVTListview::LwType m_type;
    QString m_caption; // empty for none
};
