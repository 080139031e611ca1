// Writes every class that late-bound calls reach, with all its members, to a file:
// members_file FILE. What it says of each is in docs/guide/late-binding.md.

#include "ClassDescription.h"

#include <ORVTListview/ORVTListview.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QSaveFile>
#include <QtWidgets/QApplication>

#include <cstdio>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// One object of each class of which there are fresh ones.
struct FreshObjects
{
    FreshObjects() { tree.setDesignMode(true); } // saves nothing

    QObject *of(QMetaType type)
    {
        // Not the box: its font is that of the machine.
        const QList<QObject *> all{&list,           &tree,   &combo,      &shell,
                                   list.codeView(), &answer, &reportList, reportList.grid()};
        for (QObject *object : all) {
            if (object->metaObject() == type.metaObject())
                return object;
        }
        return nullptr;
    }

    ORVListView list;
    ORVTreeview tree;
    ORVDataCombo combo;
    ORVRichText shell;
    HoverAnswer answer;
    ReportList reportList;
};

QJsonObject library()
{
    FreshObjects fresh;
    TypeDescription types;
    types.name(QMetaType::fromType<Point>()); // handed out in a QVariant
    QJsonArray classes;
    for (const QMetaType type : typesWithMembers())
        classes.append(ClassDescription(type, fresh.of(type), types).json());
    return {
        {u"format"_s, 1},
        {u"library"_s, u"ORVTListview"_s},
        {u"version"_s, QStringLiteral(ORVT_VERSION)},
        {u"classes"_s, classes},
        {u"records"_s, types.records()},
        {u"enumerations"_s, types.enumerations()},
    };
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "members_file FILE\n");
        return 2;
    }
    QSaveFile file(QString::fromLocal8Bit(argv[1]));
    const QByteArray text = QJsonDocument(library()).toJson();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        std::fprintf(stderr, "%s: %s\n", argv[1], qPrintable(file.errorString()));
        return 1;
    }
    return 0;
}
