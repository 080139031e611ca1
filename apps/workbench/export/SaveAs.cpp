#include "workbench/export/SaveAs.h"

#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtWidgets/QFileDialog>

#include <algorithm>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

// Of a filter, with its dot.
QString endingOf(const QString &kind)
{
    return kind.section(u"(*"_s, 1).chopped(1);
}

// A name may have dots of its own, which the toolkit takes for an ending.
class SaveDialog : public QFileDialog
{
public:
    SaveDialog(QWidget &window, const QString &title, const QStringList &kinds)
        : QFileDialog(&window, title)
    {
        setAcceptMode(AcceptSave);
        setNameFilters(kinds);
        takeKind(kinds.first());
        connect(this, &QFileDialog::filterSelected, this, &SaveDialog::takeKind);
    }

protected:
    void accept() override
    {
        const QString file = selectedFiles().value(0);
        if (!file.isEmpty() && !QFileInfo(file).isDir() && endingOfName(file).isEmpty())
            selectFile(file + endingOf(selectedNameFilter()));
        QFileDialog::accept();
    }

private:
    void takeKind(const QString &kind)
    {
        setDefaultSuffix(endingOf(kind).sliced(1));
        const QString file = selectedFiles().value(0);
        const QString former = endingOfName(file);
        if (!former.isEmpty())
            selectFile(file.chopped(former.size()) + endingOf(kind));
    }

    QString endingOfName(const QString &file) const
    {
        const QStringList kinds = nameFilters();
        for (const QString &kind : kinds) {
            if (file.endsWith(endingOf(kind), Qt::CaseInsensitive))
                return endingOf(kind);
        }
        return {};
    }
};

} // namespace

QString askWhereToSave(QWidget &window, const QString &title, const QStringList &kinds,
                       const QString &folder, const QString &name)
{
    const QPointer<SaveDialog> dialog(new SaveDialog(window, title, kinds));
    if (!folder.isEmpty())
        dialog->setDirectory(folder);
    dialog->selectFile(name);
    const bool isWanted = dialog->exec() == QDialog::Accepted;
    QString file = dialog && isWanted ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return file;
}

} // namespace ORVTListview
