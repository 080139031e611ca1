#include "widgets/grid/CheckField.h"

#include "grid/rules/CellRules.h"

#include <QtGui/QKeyEvent>

namespace ORVTListview {

CheckField::CheckField(const CellRule &rule, QWidget *parent)
    : QCheckBox(parent)
    , m_rule(rule)
{
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base); // as other fields
    setForegroundRole(QPalette::Text);
    connect(this, &QCheckBox::toggled, this, &CheckField::showWord);
    connect(this, &QCheckBox::clicked, this, [this] { m_isChosen = true; });
    showWord();
}

QString CheckField::word() const
{
    return m_isChosen ? cellChoices(m_rule).value(isChecked() ? 0 : 1) : m_given;
}

// Also called when the program changes the cell meanwhile.
void CheckField::setWord(const QString &word)
{
    if (m_isChosen)
        return;
    m_given = word;
    setChecked(isYes(m_rule, word));
}

bool CheckField::choose(const QString &beginning)
{
    const QStringList words = cellChoices(m_rule);
    for (int index = 0; index < 2; ++index) {
        if (beginning.isEmpty() || !words.value(index).startsWith(beginning, Qt::CaseInsensitive))
            continue;
        m_isChosen = true;
        setChecked(index == 0);
        return true;
    }
    return false;
}

void CheckField::showWord()
{
    setText(cellChoices(m_rule).value(isChecked() ? 0 : 1));
}

void CheckField::changeEvent(QEvent *event)
{
    QCheckBox::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        showWord();
}

void CheckField::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space || !choose(event->text()))
        QCheckBox::keyPressEvent(event);
}

} // namespace ORVTListview
