#include "workbench/life/NewProjectDialog.h"

#include "project/NewProject.h"
#include "project/ProjectColumns.h"
#include "project/ProjectFileName.h"
#include "project/TextFile.h"
#include "workbench/PlainTexts.h"

#include <ORVTListview/Error.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// One that is there, or can be made within one that is.
bool canBeFolder(const QString &path)
{
    if (!QDir::isAbsolutePath(path))
        return false;
    QFileInfo there(path);
    while (!there.exists() && there.path() != there.filePath())
        there.setFile(there.path());
    return there.isDir();
}

} // namespace

NewProjectDialog::NewProjectDialog(const QString &folder, QWidget *parent)
    : ReasonDialog(tr("New Project"), parent)
    , m_name(new QLineEdit(this))
    , m_folder(new QLineEdit(QDir::toNativeSeparators(folder), this))
{
    addFields();
    addEnd(tr("&Create"), 3);
    for (const QLineEdit *field : {m_name, m_folder})
        connect(field, &QLineEdit::textChanged, this, &NewProjectDialog::showPlace);
    showPlace();
    m_name->setFocus();
}

void NewProjectDialog::addFields()
{
    form().addRow(tr("&Name:"), m_name);
    auto *browse = new QPushButton(tr("&Browse…"), this);
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &NewProjectDialog::chooseFolder);
    auto *row = new QHBoxLayout;
    row->addWidget(m_folder);
    row->addWidget(browse);
    form().addRow(tr("&Folder:"), row);
    static_cast<QLabel *>(form().labelForField(row))->setBuddy(m_folder);
    m_folder->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
}

void NewProjectDialog::chooseFolder()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Folder of the New Project"), m_folder->text());
    if (!folder.isEmpty())
        m_folder->setText(QDir::toNativeSeparators(folder));
}

QString NewProjectDialog::place() const
{
    return QDir(QDir::fromNativeSeparators(m_folder->text()))
        .filePath(projectFileName(m_name->text().trimmed()));
}

// What will be made, or why nothing can be.
void NewProjectDialog::showPlace()
{
    const QString name = m_name->text().trimmed();
    QString fault;
    if (name.isEmpty())
        fault = tr("The project and an empty program are made in this folder.");
    else if (!isPointName(name))
        fault = tr("This name has characters that a name cannot have.");
    else if (!canBeFolder(m_folder->text()))
        fault = tr("This cannot be a folder.");
    else
        fault = newProjectFault(place());
    tell(fault.isEmpty() ? tr("%1 will be made.").arg(QDir::toNativeSeparators(place())) : fault,
         fault.isEmpty());
}

void NewProjectDialog::accept()
{
    try {
        makeProject(place(), m_name->text().trimmed(), readFile(u":/workbench/life/new.json"_s));
    } catch (const Error &error) {
        PlainTexts::warn(*this, windowTitle(), error.Description());
        return;
    }
    m_created = place();
    QDialog::accept();
}

} // namespace ORVTListview
