#include "project/PointReferences.h"

#include "ProjectFolder.h"
#include "project/Project.h"
#include "project/analysis/ProgramAnalysis.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class PointReferences : public testing::Test
{
protected:
    PointReferences()
        : project(write())
    {
    }

    QString write()
    {
        folder.write(u"p.prog"_s, "");
        return folder.write(u"p.json"_s, R"({"format": 1, "name": "p", "program": "p.prog",
            "variables": [{"name": "Level", "mode": "Manual"}, {"name": "Rate", "mode": "Auto"}],
            "outputs": [{"name": "Fan1", "mode": "manual"},
                        {"name": "Fan2", "mode": "Auto", "hwOverrideMode": "Manual"}],
            "inputs": [{"name": "Temp1", "mode": "Manual"}],
            "controllers": [{"input": "Temp1", "setpoint": 20, "action": "Level"},
                            {"input": "", "setpoint": "LEVEL"}],
            "logs": [{"data": "Rate", "description": "Temp1"}],
            "networkOutputs": [{"name": "Out", "dataSource": "Temp1"}]})");
    }

    QString references(const QString &name) const
    {
        QStringList found;
        for (const PointReference &at : referencesTo(project, name))
            found.append(
                u"%1 %2 %3"_s.arg(at.type).arg(at.row).arg(projectColumns(at.type)[at.column].key));
        return found.join(u'|');
    }

    ProjectFolder folder;
    Project project;
};

} // namespace

TEST_F(PointReferences, AreTheCellsThatNameAPoint)
{
    EXPECT_EQ(references(u"Temp1"_s), u"5 0 Input|10 0 Data Source"_s);
    EXPECT_EQ(references(u"level"_s), u"5 1 Setpoint"_s);
    EXPECT_EQ(references(u"Rate"_s), u"6 0 Data"_s);
    EXPECT_EQ(references(u"20"_s), QString());
    EXPECT_EQ(references(QString()), QString());
}

TEST_F(PointReferences, CountAsReadingAndWhatIsSetByHandAsWritten)
{
    const OtherUses uses = otherUsesOf(project);
    EXPECT_EQ(uses.read, (QSet<QString>{u"temp1"_s, u"level"_s, u"rate"_s}));
    EXPECT_EQ(uses.written, (QSet<QString>{u"level"_s, u"fan1"_s, u"fan2"_s}));
}
