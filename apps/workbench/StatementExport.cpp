#include "StatementExport.h"

#include "CheckTexts.h"
#include "project/TextFile.h"

#include <ORVTListview/Error.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

struct StatementExport
{
    Q_DECLARE_TR_FUNCTIONS(StatementExport)
};

} // namespace

void exportStatements(QWidget &window, const QList<ListedStatement> &statements,
                      const QString &proposedFile)
{
    const QString title = StatementExport::tr("Export Statements");
    const QString file = QFileDialog::getSaveFileName(
        &window, title, proposedFile,
        StatementExport::tr("Text (*.txt);;Values separated by commas (*.csv)"));
    if (file.isEmpty())
        return;
    const bool isCsv = file.endsWith(u".csv"_s, Qt::CaseInsensitive);
    const QStringList titles{StatementExport::tr("Line"), StatementExport::tr("Kind"),
                             StatementExport::tr("Statement")};
    const QString listing =
        isCsv ? listingCsv(statements, titles, statementName) : listingText(statements);
    try {
        writeFile(file, listing.toUtf8());
    } catch (const Error &error) {
        QMessageBox::warning(&window, title, error.Description());
    }
}

} // namespace ORVTListview
