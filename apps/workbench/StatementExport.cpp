#include "StatementExport.h"

#include "CheckTexts.h"
#include "PlainTexts.h"
#include "project/TextFile.h"
#include "workbench/export/SaveAs.h"

#include <ORVTListview/Error.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

struct StatementExport
{
    Q_DECLARE_TR_FUNCTIONS(StatementExport)
};

} // namespace

void exportStatements(QWidget &window, const QList<ListedStatement> &statements,
                      const QString &programFile)
{
    const QString title = StatementExport::tr("Export Statements");
    const QFileInfo program(programFile);
    const QString file = askWhereToSave(
        window, StatementExport::tr("Export Statements of %1").arg(program.fileName()),
        {StatementExport::tr("Text (*.txt)"),
         StatementExport::tr("Values separated by commas (*.csv)")},
        program.path(), programFile.isEmpty() ? QString() : program.fileName() + u".txt"_s);
    if (file.isEmpty())
        return;
    const bool isCsv = file.endsWith(u".csv"_s, Qt::CaseInsensitive);
    const QStringList titles{StatementExport::tr("Line"), StatementExport::tr("Kind"),
                             StatementExport::tr("Statement")};
    const QByteArray listing =
        isCsv ? byteOrderMark.toByteArray() + listingCsv(statements, titles, statementName).toUtf8()
              : listingText(statements).toUtf8();
    try {
        writeFile(file, listing);
    } catch (const Error &error) {
        PlainTexts::warn(window, title, error.Description());
    }
}

} // namespace ORVTListview
