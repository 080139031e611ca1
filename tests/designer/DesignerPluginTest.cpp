#include "designer/Designer.h"
#include "support/TestFolder.h"
#include "support/WidgetTest.h"
#include "ui_DisabledForm.h"
#include <ORVTListview/ORVDataCombo.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVRichText.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/SettingsStore.h>

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtCore/QPluginLoader>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QFormBuilder>
#include <QtGui/QUndoStack>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QApplication>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QStringList classNames{u"ORVTListview::ORVListView"_s, u"ORVTListview::ORVTreeview"_s,
                             u"ORVTListview::ORVDataCombo"_s, u"ORVTListview::ORVRichText"_s};

QList<QDesignerCustomWidgetInterface *> pluginWidgets()
{
    QPluginLoader loader(QStringLiteral(ORVT_DESIGNER_PLUGIN));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    if (!collection)
        qFatal("%s", qPrintable(loader.errorString()));
    return collection->customWidgets();
}

QDesignerCustomWidgetInterface *pluginWidget(const QString &name)
{
    for (QDesignerCustomWidgetInterface *widget : pluginWidgets()) {
        if (widget->name() == name)
            return widget;
    }
    return nullptr;
}

// With all that a form keeps of the four components changed.
QString changedForm()
{
    Designer designer;
    const auto window = designer.opened(plainForm);
    designer.change(*window, u"listView"_s, u"ListviewType"_s, qint32{dsOutput});
    designer.change(*window, u"listView"_s, u"Caption"_s, u"Valves & <pumps>"_s);
    designer.change(*window, u"listView"_s, u"Enabled"_s, false);
    designer.change(*window, u"listView"_s, u"MultiSelect"_s, true);
    designer.change(*window, u"dataCombo"_s, u"Text"_s, u"SupplyTemp"_s);
    designer.change(*window, u"richText"_s, u"geometry"_s, QRect(10, 20, 300, 200));
    return window->contents();
}

template <typename Loader>
std::unique_ptr<QWidget> loadedForm(Loader &loader, const QString &xml)
{
    QByteArray bytes = xml.toUtf8();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return std::unique_ptr<QWidget>(loader.load(&buffer));
}

// As far as forms keep it.
void compareWithChangedForm(const QWidget &form)
{
    const auto *list = form.findChild<ORVListView *>(u"listView"_s);
    QVERIFY(list);
    QCOMPARE(list->ListviewType(), dsOutput);
    QCOMPARE(list->Caption(), u"Valves & <pumps>"_s);
    QCOMPARE(list->Enabled(), false);
    QCOMPARE(list->MultiSelect(), true);
    QVERIFY(form.findChild<ORVTreeview *>(u"treeview"_s));
    const auto *combo = form.findChild<ORVDataCombo *>(u"dataCombo"_s);
    QVERIFY(combo);
    QCOMPARE(combo->Text(), u"SupplyTemp"_s);
    const auto *shell = form.findChild<ORVRichText *>(u"richText"_s);
    QVERIFY(shell);
    QCOMPARE(shell->geometry(), QRect(10, 20, 300, 200));
}

} // namespace

class DesignerPluginTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;

    void treeOfARunningFormSavesItsPages(); // first: the plugin stays when Designer ends
    void offersAllComponents();
    void describesEachComponent_data();
    void describesEachComponent();
    void putsEachComponentOnAForm_data() { describesEachComponent_data(); }
    void putsEachComponentOnAForm();
    void showsTheDesignTimeProperties();
    void namesTheTypesInAList();
    void designerSavesAndReloadsAForm();
    void designerNamesTheHeaders();
    void formBuilderLoadsTheForm();
    void uiLoaderLoadsTheForm();
    void loadedFormsHeedTabStops_data();
    void loadedFormsHeedTabStops();
    void treeOfADesignedFormSavesNothing();
    void aDisabledTableIsDisabledHoweverTheFormIsMade_data();
    void aDisabledTableIsDisabledHoweverTheFormIsMade();
    void keepsACaptionWhenTheTypeIsChangedAndBack();
    void savesNoCaptionThatWasNotGiven();

private:
    std::unique_ptr<TestFolder> m_settings;
};

void DesignerPluginTest::init()
{
    WidgetTest::init();
    m_settings = std::make_unique<TestFolder>();
    setSettingsFile(m_settings->path(u"settings"_s));
}

void DesignerPluginTest::treeOfARunningFormSavesItsPages()
{
    delete pluginWidget(u"ORVTListview::ORVTreeview"_s)->createWidget(nullptr);
    QVERIFY(!m_settings->names().isEmpty());
}

void DesignerPluginTest::offersAllComponents()
{
    QStringList names;
    for (const QDesignerCustomWidgetInterface *widget : pluginWidgets())
        names.append(widget->name());
    QCOMPARE(names, classNames);
}

void DesignerPluginTest::describesEachComponent_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : classNames)
        QTest::newRow(qPrintable(name)) << name;
}

void DesignerPluginTest::describesEachComponent()
{
    QFETCH(QString, name);
    const QDesignerCustomWidgetInterface *widget = pluginWidget(name);
    QVERIFY(widget);
    QCOMPARE(widget->group(), u"ORVTListview"_s);
    QVERIFY(!widget->toolTip().isEmpty());
    QVERIFY(!widget->whatsThis().isEmpty());
    QVERIFY(!widget->isContainer());
    QCOMPARE(widget->includeFile(), u"<ORVTListview/"_s + name.section(u"::"_s, 1) + u".h>"_s);
    const QImage icon = widget->icon().pixmap(22, 22).toImage();
    QVERIFY(!icon.isNull());
    QVERIFY(icon != QImage(icon.size(), icon.format())); // drawn
}

void DesignerPluginTest::putsEachComponentOnAForm()
{
    QFETCH(QString, name);
    QDesignerCustomWidgetInterface *widget = pluginWidget(name);
    QVERIFY(widget);
    QFormBuilder builder;
    builder.setPluginPath({QStringLiteral(ORVT_DESIGNER_FOLDER)});
    const auto made = loadedForm(builder, widget->domXml());
    QVERIFY(made);
    QCOMPARE(QString::fromLatin1(made->metaObject()->className()), name);
    QVERIFY(!made->objectName().isEmpty());
    QVERIFY(made->width() > 100);
}

void DesignerPluginTest::showsTheDesignTimeProperties()
{
    const QMetaObject &meta = ORVListView::staticMetaObject;
    QStringList designable;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const bool isWidgets =
            QWidget::staticMetaObject.indexOfProperty(meta.property(i).name()) >= 0;
        if (meta.property(i).isDesignable() && meta.property(i).isStored() && !isWidgets)
            designable.append(QString::fromLatin1(meta.property(i).name()));
    }
    designable.sort();
    QCOMPARE(designable, QStringList({u"Caption"_s, u"Enabled"_s, u"ListviewType"_s,
                                      u"MultiSelect"_s, u"columnLayout"_s, u"programColours"_s}));
}

void DesignerPluginTest::namesTheTypesInAList()
{
    const QMetaObject &meta = ORVListView::staticMetaObject;
    const QMetaProperty type = meta.property(meta.indexOfProperty("ListviewType"));
    QVERIFY(type.isEnumType());
    QCOMPARE(type.enumerator().keyCount(), 13);
    QCOMPARE(type.enumerator().valueToKey(dsOs), "dsOs");
}

void DesignerPluginTest::designerSavesAndReloadsAForm()
{
    Designer designer;
    const QString xml = changedForm();
    QVERIFY2(xml.contains(u"<enum>ORVTListview::dsOutput</enum>"_s), qPrintable(xml));
    const auto reloaded = designer.opened(xml);
    compareWithChangedForm(*reloaded);
    QCOMPARE(reloaded->contents(), xml);
}

void DesignerPluginTest::designerNamesTheHeaders()
{
    const QString xml = changedForm();
    for (const QString &name : classNames) {
        const QString header = u"<header location=\"global\">ORVTListview/%1.h</header>"_s;
        QVERIFY2(xml.contains(header.arg(name.section(u"::"_s, 1))), qPrintable(xml));
    }
}

void DesignerPluginTest::formBuilderLoadsTheForm()
{
    QFormBuilder builder;
    builder.setPluginPath({QStringLiteral(ORVT_DESIGNER_FOLDER)});
    const auto loaded = loadedForm(builder, changedForm());
    QVERIFY(loaded);
    compareWithChangedForm(*loaded);
}

void DesignerPluginTest::uiLoaderLoadsTheForm()
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(ORVT_DESIGNER_FOLDER));
    for (const QString &name : classNames)
        QVERIFY2(loader.availableWidgets().contains(name), qPrintable(name));
    const auto loaded = loadedForm(loader, changedForm());
    QVERIFY(loaded);
    compareWithChangedForm(*loaded);
}

void DesignerPluginTest::loadedFormsHeedTabStops_data()
{
    QTest::addColumn<bool>("isUiLoader");
    QTest::newRow("form builder") << false;
    QTest::newRow("form loader") << true;
}

void DesignerPluginTest::loadedFormsHeedTabStops()
{
    QFETCH(bool, isUiLoader);
    const QString xml = uR"(<ui version="4.0"><class>Form</class>
<widget class="QWidget" name="Form"><layout class="QVBoxLayout">
 <item><widget class="QLineEdit" name="last"/></item>
 <item><widget class="ORVTListview::ORVListView" name="listView"/></item>
 <item><widget class="QLineEdit" name="first"/></item>
</layout></widget><tabstops><tabstop>first</tabstop><tabstop>listView</tabstop>
<tabstop>last</tabstop></tabstops></ui>)"_s;
    QFormBuilder builder;
    builder.setPluginPath({QStringLiteral(ORVT_DESIGNER_FOLDER)});
    QUiLoader loader;
    loader.addPluginPath(QStringLiteral(ORVT_DESIGNER_FOLDER));
    const auto form = isUiLoader ? loadedForm(loader, xml) : loadedForm(builder, xml);
    QVERIFY(form);
    form->show();
    form->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(form.get()));
    form->findChild<QWidget *>(u"first"_s)->setFocus();
    for (const QString &next : {u"ListView1"_s, u"ImgRead"_s, u"last"_s, u"first"_s}) {
        QTest::keyClick(form->windowHandle(), Qt::Key_Tab);
        QCOMPARE(form->focusWidget()->objectName(), next);
    }
}

void DesignerPluginTest::treeOfADesignedFormSavesNothing()
{
    changedForm();
    QCOMPARE(m_settings->names(), QStringList());
}

void DesignerPluginTest::aDisabledTableIsDisabledHoweverTheFormIsMade_data()
{
    QTest::addColumn<QString>("how");
    for (const QString &how : {u"uic"_s, u"form builder"_s, u"ui loader"_s, u"Designer"_s})
        QTest::newRow(qPrintable(how)) << how;
}

void DesignerPluginTest::aDisabledTableIsDisabledHoweverTheFormIsMade()
{
    QFETCH(const QString, how);
    QFile file(QStringLiteral(ORVT_DISABLED_FORM));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString xml = QString::fromUtf8(file.readAll());
    Designer designer;
    std::unique_ptr<QWidget> form;
    if (how == u"uic"_s) {
        form = std::make_unique<QWidget>();
        Ui::DisabledForm().setupUi(form.get());
    } else if (how == u"form builder"_s) {
        QFormBuilder builder;
        builder.setPluginPath({QStringLiteral(ORVT_DESIGNER_FOLDER)});
        form = loadedForm(builder, xml);
    } else if (how == u"ui loader"_s) {
        QUiLoader loader;
        form = loadedForm(loader, xml);
    } else {
        const QString saved = designer.opened(xml)->contents();
        QVERIFY2(saved.indexOf(u"dsOutput"_s) < saved.indexOf(u"\"enabled\""_s), qPrintable(saved));
        form = designer.opened(saved);
    }
    for (const QString &name : {u"oldWay"_s, u"newWay"_s}) {
        auto *list = form->findChild<ORVListView *>(name);
        QVERIFY2(list, qPrintable(name));
        QVERIFY2(!list->Enabled(), qPrintable(name));
        for (const QString &part :
             {u"ListView1"_s, u"RichTextBox1"_s, u"ImgRead"_s, u"ImgWrite"_s, u"LblCaption"_s})
            QVERIFY2(!list->findChild<QWidget *>(part)->isEnabled(), qPrintable(name + part));
        list->setEnabled(true); // the host's word is the last one
        QVERIFY2(list->listView()->isEnabled(), qPrintable(name));
    }
    auto *combo = form->findChild<ORVDataCombo *>();
    QVERIFY(!combo->Enabled() && !combo->isEnabled());
    combo->setEnabled(true);
    QVERIFY(combo->isEnabled());
}

void DesignerPluginTest::keepsACaptionWhenTheTypeIsChangedAndBack()
{
    Designer designer;
    const auto window = designer.opened(plainForm);
    const auto *list = window->findChild<ORVListView *>(u"listView"_s);
    designer.edit(*window, u"listView"_s, u"Caption"_s, u"Valves"_s);
    designer.edit(*window, u"listView"_s, u"ListviewType"_s, qint32{dsOutput});
    QCOMPARE(list->ListviewType(), dsOutput);
    QCOMPARE(list->Caption(), u"Valves"_s);
    for (int time = 0; time < 2; ++time) {
        window->commandHistory()->undo();
        QCOMPARE(list->ListviewType(), dsInput);
        QCOMPARE(list->Caption(), u"Valves"_s);
        window->commandHistory()->redo();
        QCOMPARE(list->ListviewType(), dsOutput);
        QCOMPARE(list->Caption(), u"Valves"_s);
    }
    const QString xml = window->contents();
    QVERIFY2(xml.contains(u"<string>Valves</string>"_s), qPrintable(xml));
    QCOMPARE(designer.opened(xml)->findChild<ORVListView *>(u"listView"_s)->Caption(), u"Valves"_s);
}

void DesignerPluginTest::savesNoCaptionThatWasNotGiven()
{
    Designer designer;
    const auto window = designer.opened(plainForm);
    const auto *list = window->findChild<ORVListView *>(u"listView"_s);
    designer.edit(*window, u"listView"_s, u"ListviewType"_s, qint32{dsOutput});
    QCOMPARE(list->Caption(), u"Outputs"_s);
    designer.edit(*window, u"listView"_s, u"Caption"_s, u"Valves"_s);
    window->commandHistory()->undo();
    designer.edit(*window, u"listView"_s, u"ListviewType"_s, qint32{dsTimer});
    QCOMPARE(list->Caption(), u"Timers"_s);
    const QString xml = window->contents();
    QVERIFY2(!xml.contains(u"Caption"_s), qPrintable(xml));
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    // Designer and the loaders look into the folder "designer" of each.
    QCoreApplication::setLibraryPaths(QCoreApplication::libraryPaths()
                                      << QStringLiteral(ORVT_DESIGNER_FOLDER "/.."));
    DesignerPluginTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DesignerPluginTest.moc"
