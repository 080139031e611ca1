#pragma once

#include "project/importing/PointImport.h"
#include "project/importing/SeparatedText.h"

#include <QtCore/QByteArray>
#include <QtWidgets/QDialog>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QTreeView;

namespace ORVTListview {

class ImportModel;
class Project;

// Shows what a text with separators would make of a table, how it is read and which of its
// columns is which. Guesses come first, and all of it can be changed.
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    // The project outlives it.
    ImportDialog(const Project &project, LwType type, const QByteArray &bytes,
                 const QString &fileName, QWidget *parent);

    // What the ticks say.
    RowChanges changes() const;

private:
    QWidget *makeForm();
    QWidget *makeColumns();
    void addColumn(QGridLayout &grid, const QString &title, qsizetype place);
    QWidget *makeButtons();
    void decode();
    void divide();
    void guessColumns();
    void preview();
    void summarise();
    ImportColumns columns() const;

    const Project &m_project;
    const LwType m_type;
    const QByteArray m_bytes;
    QString m_text;
    QList<QStringList> m_cells;
    QComboBox *m_encoding;
    QComboBox *m_separator;
    QCheckBox *m_hasHeads;
    QList<QComboBox *> m_sources; // the row's number, then projectColumns(type)
    ImportModel *m_model;
    QTreeView *m_rows;
    QLabel *m_summary;
    QPushButton *m_import = nullptr;
};

} // namespace ORVTListview
