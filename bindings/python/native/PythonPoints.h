#pragma once

#include "native/PythonObject.h"

#include <ORVTListview/PointCollection.h>

// The points of a class of Python that is derived from PointCollection. The object of
// Python owns this one.
class PythonPoints : public ORVTListview::PointCollection
{
public:
    explicit PythonPoints(PyObject *object);

    // What these raise in Python is raised again.
    qint32 Count() const override;
    std::optional<ORVTListview::Point> Item(qint32 Index) const override;
    std::optional<ORVTListview::Point> Find(const QString &Key) const override;

private:
    PythonObject own(const char *member) const;
    std::optional<ORVTListview::Point> asked(const char *member, PyObject *argument) const;

    PyObject *m_object; // borrowed: it is this one's owner
};
