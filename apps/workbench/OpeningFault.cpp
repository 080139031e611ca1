#include "OpeningFault.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QPushButton>

namespace ORVTListview {

using namespace Qt::StringLiterals;

OpeningFault::OpeningFault(QWidget *parent)
    : ActionPage(parent)
    , m_other(addButton())
    , m_again(addButton())
    , m_former(addButton())
{
    connect(m_other, &QPushButton::clicked, this, &OpeningFault::choiceWanted);
    connect(m_again, &QPushButton::clicked, this, [this] { Q_EMIT projectWanted(m_fileName); });
    connect(m_former, &QPushButton::clicked, this,
            [this] { Q_EMIT versionBeforeWanted(m_fileName); });
    retranslate();
}

void OpeningFault::show(const QString &fileName, const QString &reason)
{
    m_fileName = fileName;
    m_reason = reason;
    m_former->setVisible(QFileInfo(fileName + u'~').isFile());
    retranslate();
    m_other->setFocus();
}

void OpeningFault::retranslate()
{
    setTitle(tr("The project cannot be opened"));
    setText(m_reason + u"\n\n"_s +
            tr("Mend the file and try again, or open another project. The file has been "
               "left as it is."));
    m_other->setText(tr("Open &Another…"));
    m_again->setText(tr("Try A&gain"));
    m_former->setText(tr("Open the Version &Before"));
}

} // namespace ORVTListview
