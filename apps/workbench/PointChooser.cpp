#include "PointChooser.h"

#include "shared/points/PictureNumbers.h"

#include <ORVTListview/ImageList.h>
#include <ORVTListview/ORVDataCombo.h>

#include <QtGui/QActionGroup>
#include <QtWidgets/QStyle>

#include <array>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

struct Kind
{
    LwType type;
    PictureNumber picture; // as in the combo itself
};

constexpr std::array kinds{Kind{dsInput, InputPicture}, Kind{dsOutput, OutputPicture},
                           Kind{dsVariable, VariablePicture}, Kind{dsConst, ConstantPicture}};

QString nameOf(LwType type)
{
    switch (type) {
    case dsInput:
        return PointChooser::tr("Inputs");
    case dsOutput:
        return PointChooser::tr("Outputs");
    case dsVariable:
        return PointChooser::tr("Variables");
    default:
        return PointChooser::tr("Constants");
    }
}

} // namespace

PointChooser::PointChooser(QWidget *parent)
    : QToolBar(parent)
    , m_kinds(new QActionGroup(this))
    , m_points(new ORVDataCombo(this))
{
    setObjectName(u"PointChooser"_s);
    setMovable(false);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    setIconSize({side, side});
    for (const Kind &kind : kinds) {
        QAction *action = addAction(QString());
        action->setCheckable(true);
        action->setData(kind.type);
        m_kinds->addAction(action);
    }
    m_kinds->actions().constFirst()->setChecked(true);
    m_points->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    m_points->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_points->setDragsEntry(true); // into the program
    addWidget(m_points);
    setFocusProxy(m_points);
    connect(m_kinds, &QActionGroup::triggered, this, &PointChooser::refill);
    connect(m_points, &ORVDataCombo::picked, this,
            [this] { Q_EMIT chosen(kind(), m_points->Text()); });
    retranslate();
}

void PointChooser::setPictures(const ImageList &pictures)
{
    for (std::size_t i = 0; i < kinds.size(); ++i)
        m_kinds->actions()
            .at(static_cast<qsizetype>(i))
            ->setIcon(pictures.Picture(kinds[i].picture));
}

QList<LwType> PointChooser::types()
{
    QList<LwType> types;
    for (const Kind &kind : kinds)
        types.append(kind.type);
    return types;
}

void PointChooser::choose(LwType type)
{
    for (QAction *action : m_kinds->actions()) {
        if (action->data().value<LwType>() == type)
            action->trigger();
    }
    m_points->setFocus(Qt::ShortcutFocusReason);
}

LwType PointChooser::kind() const
{
    return m_kinds->checkedAction()->data().value<LwType>();
}

void PointChooser::refill()
{
    QString errMsg;
    m_points->FillDataListview(kind(), nullptr, errMsg);
    if (!errMsg.isEmpty())
        Q_EMIT told(errMsg);
}

void PointChooser::retranslate()
{
    setWindowTitle(tr("Points"));
    m_points->setAccessibleName(tr("Points"));
    m_points->setToolTip(tr("Choose a point: its name goes into the program, or its row is shown"));
    for (QAction *action : m_kinds->actions())
        action->setText(nameOf(action->data().value<LwType>()));
    m_points->ReInitializeStrings();
}

} // namespace ORVTListview
