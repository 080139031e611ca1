#include "OpeningFault.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace ORVTListview {

using namespace Qt::StringLiterals;

OpeningFault::OpeningFault(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_text(new QLabel(this))
    , m_again(new QPushButton(this))
    , m_other(new QPushButton(this))
    , m_former(new QPushButton(this))
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    m_title->setFont(large);
    for (QLabel *label : {m_title, m_text}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }
    auto *layout = new QVBoxLayout(this);
    layout->addStretch(1);
    layout->addWidget(m_title);
    layout->addWidget(m_text);
    auto *buttons = new QHBoxLayout;
    for (QPushButton *button : {m_other, m_again, m_former})
        buttons->addWidget(button);
    buttons->addStretch();
    layout->addLayout(buttons);
    layout->addStretch(2);
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
    m_title->setText(tr("The project cannot be opened"));
    m_text->setText(m_reason + u"\n\n"_s +
                    tr("Mend the file and try again, or open another project. The file has been "
                       "left as it is."));
    m_other->setText(tr("Open &Another…"));
    m_again->setText(tr("Try A&gain"));
    m_former->setText(tr("Open the Version &Before"));
}

} // namespace ORVTListview
