#include <ORVTListview/PointCollection.h>

#include <QtCore/QTextStream>

// A host without widgets.
int main()
{
    using namespace Qt::StringLiterals;
    ORVTListview::PointList points;
    points.Add(u"SupplyTemp"_s);
    QTextStream(stdout) << points.Count() << " point" << Qt::endl;
    return 0;
}
