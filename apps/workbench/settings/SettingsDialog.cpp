#include "workbench/settings/SettingsDialog.h"

#include "widgets/look/Colours.h"
#include "widgets/look/Luminance.h"
#include "workbench/Appearance.h"
#include "workbench/Languages.h"
#include "workbench/settings/ColourPreview.h"

#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

constexpr double leastContrast = 4.5;

QIcon swatch(const QColor &colour, const QWidget &on)
{
    const int size = on.fontMetrics().height();
    QPixmap picture(size, size);
    picture.fill(colour);
    return picture;
}

} // namespace

SettingsDialog::SettingsDialog(const Settings &settings, const RichTextSettings &project,
                               const TypingHelps &helps, QWidget *parent)
    : QDialog(parent)
    , m_settings(settings)
    , m_project(project)
    , m_helps(helps)
    , m_language(new QComboBox(this))
    , m_theme(new QComboBox(this))
    , m_set(new QComboBox(this))
    , m_ownFont(new QCheckBox(tr("Own &font:"), this))
    , m_font(new QFontComboBox(this))
    , m_size(new QSpinBox(this))
    , m_warning(new QLabel(this))
    , m_preview(new ColourPreview(this))
{
    setWindowTitle(tr("Settings"));
    auto *buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::RestoreDefaults, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons->button(QDialogButtonBox::RestoreDefaults), &QPushButton::clicked, this,
            &SettingsDialog::restoreDefaults);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(makeWindowPart());
    layout->addWidget(makeProgramPart());
    layout->addWidget(makeTypingPart());
    layout->addWidget(m_preview, 1);
    layout->addWidget(m_warning);
    layout->addWidget(buttons);
    m_warning->setWordWrap(true);
    showSettings();
    m_preview->setMinimumHeight(m_preview->fontMetrics().lineSpacing() * 7);
}

QWidget *SettingsDialog::makeWindowPart()
{
    auto *part = new QGroupBox(tr("Window"), this);
    auto *form = new QFormLayout(part);
    m_language->addItem(tr("The system's"));
    for (const QLocale &language : Languages::available())
        m_language->addItem(Languages::nameOf(language), language);
    m_theme->addItems({tr("As the system"), tr("Light"), tr("Dark")});
    form->addRow(tr("&Language:"), m_language);
    form->addRow(tr("&Theme:"), m_theme);
    connect(m_language, &QComboBox::activated, this, [this](int row) {
        m_settings.language =
            row == 0 ? std::nullopt : std::optional(m_language->itemData(row).toLocale());
    });
    connect(m_theme, &QComboBox::activated, this,
            [this](int row) { m_settings.theme = static_cast<Theme>(row); });
    return part;
}

QWidget *SettingsDialog::makeProgramPart()
{
    auto *part = new QGroupBox(tr("Program"), this);
    auto *form = new QFormLayout(part);
    m_set->addItems({tr("The project's"), tr("Light"), tr("Dark"), tr("High contrast"), tr("Own")});
    form->addRow(tr("&Colours:"), m_set);
    form->addRow(makeColourButtons());
    m_font->setFontFilters(QFontComboBox::MonospacedFonts);
    m_font->setAccessibleName(tr("Font"));
    form->addRow(m_ownFont, m_font);
    m_size->setRange(3, 72);
    m_size->setSpecialValueText(tr("The project's"));
    form->addRow(tr("Font &size:"), m_size);
    connect(m_set, &QComboBox::activated, this, &SettingsDialog::chooseSet);
    connect(m_ownFont, &QCheckBox::clicked, this, &SettingsDialog::takeFont);
    connect(m_font, &QFontComboBox::currentFontChanged, this, &SettingsDialog::takeFont);
    connect(m_size, &QSpinBox::valueChanged, this, &SettingsDialog::takeSize);
    return part;
}

QWidget *SettingsDialog::makeColourButtons()
{
    auto *part = new QWidget(this);
    auto *layout = new QGridLayout(part);
    layout->setContentsMargins({});
    const QStringList names = {tr("Reserved words"),  tr("Variables"), tr("Constants"),
                               tr("Inputs"),          tr("Outputs"),   tr("Network inputs"),
                               tr("Network outputs"), tr("Comments")};
    for (qsizetype i = 0; i < names.size(); ++i)
        addColour(*layout, names.at(i), classColours[i]);
    addColour(*layout, tr("Ground"), &RichTextSettings::BackColor);
    return part;
}

void SettingsDialog::addColour(QGridLayout &layout, const QString &name, ClassColour colour)
{
    constexpr int columns = 3;
    auto *button = new QPushButton(name, this);
    button->setAutoDefault(false);
    const auto place = static_cast<int>(m_colours.size());
    layout.addWidget(button, place / columns, place % columns);
    m_colours.append({button, colour});
    connect(button, &QPushButton::clicked, this, [this, colour] { chooseColour(colour); });
}

QWidget *SettingsDialog::makeTypingPart()
{
    auto *part = new QGroupBox(tr("While Typing"), this);
    auto *layout = new QGridLayout(part);
    addHelp(*layout, tr("&Indent after IF and ELSE"), &TypingHelps::indents);
    addHelp(*layout, tr("&Home goes to the first word"), &TypingHelps::hasSmartHome);
    addHelp(*layout, tr("Drop &blanks at line ends"), &TypingHelps::dropsBlanks);
    addHelp(*layout, tr("The &word list opens by itself"), &TypingHelps::listsWords);
    return part;
}

void SettingsDialog::addHelp(QGridLayout &layout, const QString &text, bool TypingHelps::*help)
{
    constexpr int columns = 2;
    auto *box = new QCheckBox(text, this);
    const auto place = static_cast<int>(m_helpBoxes.size());
    layout.addWidget(box, place / columns, place % columns);
    m_helpBoxes.append({box, help});
    connect(box, &QCheckBox::clicked, this, [this, help](bool on) { m_helps.*help = on; });
}

void SettingsDialog::chooseSet(int row)
{
    const auto set = static_cast<ColourSet>(row);
    if (set == ColourSet::Own) // begins with what is seen
        takeColours(m_settings.look.own, seen());
    m_settings.look.colours = set;
    showColours();
}

void SettingsDialog::chooseColour(ClassColour colour)
{
    const RichTextSettings shown = seen();
    const QColor chosen =
        QColorDialog::getColor(Colours::toColor(shown.*colour, palette()), this, windowTitle());
    if (!chosen.isValid())
        return;
    if (m_settings.look.colours != ColourSet::Own)
        takeColours(m_settings.look.own, shown);
    m_settings.look.colours = ColourSet::Own;
    m_settings.look.own.*colour = Colours::fromColor(chosen);
    showColours();
}

// The colours of the preview, none of them the system's.
RichTextSettings SettingsDialog::seen() const
{
    RichTextSettings shown = legibleOn(palette(), m_settings.look.over(m_project));
    shown.BackColor = Colours::fromColor(Colours::toColor(shown.BackColor, palette()));
    for (const ClassColour colour : classColours)
        shown.*colour = Colours::fromColor(Colours::toColor(shown.*colour, palette()));
    return shown;
}

void SettingsDialog::takeFont()
{
    m_font->setEnabled(m_ownFont->isChecked());
    m_settings.look.fontName = m_ownFont->isChecked() ? m_font->currentFont().family() : QString();
    showColours();
}

void SettingsDialog::takeSize(int points)
{
    m_settings.look.fontSize =
        points == m_size->minimum() ? qint16(0) : static_cast<qint16>(points);
    showColours();
}

void SettingsDialog::restoreDefaults()
{
    Settings defaults;
    defaults.reading = m_settings.reading; // which is not asked for here
    m_settings = defaults;
    m_helps = {};
    showSettings();
}

void SettingsDialog::showSettings()
{
    m_language->setCurrentIndex(0);
    if (m_settings.language) {
        const QLocale shown = Languages::shownFor(*m_settings.language);
        m_language->setCurrentIndex(std::max(0, m_language->findData(shown)));
    }
    m_theme->setCurrentIndex(static_cast<int>(m_settings.theme));
    const EditorLook look = m_settings.look;
    const QSignalBlocker quietFont(m_font);
    const QSignalBlocker quietSize(m_size);
    m_ownFont->setChecked(!look.fontName.isEmpty());
    m_font->setEnabled(m_ownFont->isChecked());
    m_font->setCurrentFont(QFont(look.fontName.isEmpty() ? m_project.FontName : look.fontName));
    m_size->setValue(look.fontSize > 0 ? look.fontSize : m_size->minimum());
    for (const auto &[box, help] : std::as_const(m_helpBoxes))
        box->setChecked(m_helps.*help);
    showColours();
}

void SettingsDialog::showColours()
{
    const RichTextSettings shown = legibleOn(palette(), m_settings.look.over(m_project));
    m_set->setCurrentIndex(static_cast<int>(m_settings.look.colours));
    m_preview->show(shown);
    const QColor ground = Colours::toColor(shown.BackColor, palette());
    QStringList faint;
    for (const auto &[button, member] : std::as_const(m_colours)) {
        const QColor colour = Colours::toColor(shown.*member, palette());
        button->setIcon(swatch(colour, *this));
        button->setAccessibleDescription(colour.name());
        if (member != &RichTextSettings::BackColor && contrast(colour, ground) < leastContrast)
            faint.append(button->text());
    }
    m_warning->setText(faint.isEmpty() ? QString()
                                       : tr("Hard to read on this ground: %1. The editor shows "
                                            "them stronger while Readable Colours is on.")
                                             .arg(faint.join(u", "_s)));
}

} // namespace ORVTListview
