#include "ColoursDialog.h"

#include "shared/points/ProgramColours.h"
#include "widgets/look/Colours.h"
#include "widgets/look/Luminance.h"
#include "workbench/settings/ColourPreview.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr double leastContrast = 4.5;

// In the order of the sets, without none and the own ones.
constexpr ColourSet readySets[] = {ColourSet::Light, ColourSet::Dark, ColourSet::HighContrast};

QPixmap swatch(const QColor &colour, const QWidget &on)
{
    const int size = on.fontMetrics().height();
    QPixmap picture(size, size);
    picture.fill(colour);
    return picture;
}

} // namespace

ColoursDialog::ColoursDialog(const QString &colours, QWidget *parent)
    : QDialog(parent)
    , m_set(new QComboBox(this))
    , m_preview(new ColourPreview(this))
    , m_faint(new QLabel(this))
{
    setWindowTitle(tr("Colours of the Program"));
    m_set->addItems({tr("None"), tr("Light"), tr("Dark"), tr("High contrast"), tr("Own")});
    connect(m_set, &QComboBox::activated, this, &ColoursDialog::chooseSet);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *sets = new QFormLayout;
    sets->addRow(tr("Colour &set:"), m_set);
    m_faint->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(sets);
    layout->addWidget(makeButtons());
    layout->addWidget(m_preview, 1);
    layout->addWidget(m_faint);
    layout->addWidget(buttons);
    readColours(colours);
    m_preview->setMinimumHeight(m_preview->fontMetrics().lineSpacing() * 8);
}

QString ColoursDialog::colours() const
{
    return m_set->currentIndex() == None ? QString() : programColoursText(m_colours);
}

void ColoursDialog::readColours(const QString &text)
{
    int set = None;
    if (takeProgramColours(m_colours, text)) {
        set = Light;
        while (set < Own && m_colours != readyColours(readySets[set - Light]))
            ++set;
    }
    m_set->setCurrentIndex(set);
    chooseSet(set);
}

QWidget *ColoursDialog::makeButtons()
{
    auto *part = new QWidget(this);
    auto *layout = new QGridLayout(part);
    layout->setContentsMargins({});
    const QStringList names = {tr("Reserved words"),  tr("Variables"), tr("Constants"),
                               tr("Inputs"),          tr("Outputs"),   tr("Network inputs"),
                               tr("Network outputs"), tr("Comments")};
    for (qsizetype i = 0; i < names.size(); ++i)
        addButton(*layout, names.at(i), classColours[i]);
    addButton(*layout, tr("Ground"), &RichTextSettings::BackColor);
    return part;
}

void ColoursDialog::addButton(QGridLayout &layout, const QString &name, ClassColour colour)
{
    constexpr int columns = 3;
    auto *button = new QPushButton(name, this);
    button->setAutoDefault(false);
    const auto place = static_cast<int>(m_parts.size());
    layout.addWidget(button, place / columns, place % columns);
    m_parts.append({button, colour});
    connect(button, &QPushButton::clicked, this, [this, colour] { choose(colour); });
}

// The own ones begin with those that are seen.
void ColoursDialog::chooseSet(int set)
{
    if (set == None) {
        m_colours = {};
        m_colours.BackColor = Colours::fromColor(palette().color(QPalette::Base));
    } else if (set != Own) {
        m_colours = readyColours(readySets[set - Light]);
    }
    showColours();
}

void ColoursDialog::choose(ClassColour colour)
{
    const QColor chosen =
        QColorDialog::getColor(Colours::toColor(m_colours.*colour, palette()), this, windowTitle());
    if (!chosen.isValid())
        return;
    m_colours.*colour = Colours::fromColor(chosen);
    m_set->setCurrentIndex(Own);
    showColours();
}

void ColoursDialog::showColours()
{
    m_preview->show(m_colours);
    const QColor ground = Colours::toColor(m_colours.BackColor, palette());
    QStringList faint;
    for (const auto &[button, member] : std::as_const(m_parts)) {
        const QColor colour = Colours::toColor(m_colours.*member, palette());
        button->setIcon(swatch(colour, *this));
        button->setAccessibleDescription(colour.name());
        if (member != &RichTextSettings::BackColor && contrast(colour, ground) < leastContrast)
            faint.append(button->text());
    }
    showFaint(faint);
}

void ColoursDialog::showFaint(const QStringList &faint)
{
    const bool isNone = m_set->currentIndex() == None;
    m_faint->setText(isNone ? tr("The program sets the colours.")
                     : faint.isEmpty()
                         ? QString()
                         : tr("Hard to read on this ground: %1.").arg(faint.join(u", "_s)));
}
