#include "support/QtPrinters.h"
#include <ORVTListview/JsonPropertyBag.h>
#include <ORVTListview/MemoryPropertyBag.h>
#include <ORVTListview/SettingsPropertyBag.h>
#include <ORVTListview/Types.h>

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QVariant defaultType = QVariant::fromValue(dsInput);

// One kind of bag: a fresh one, and the same kept values read anew.
struct Store
{
    virtual ~Store() = default;
    virtual PropertyBag &bag() = 0;
    virtual void reopen() = 0;
};

struct MemoryStore : Store
{
    PropertyBag &bag() override { return *m_bag; }
    void reopen() override { m_bag = std::make_unique<MemoryPropertyBag>(m_bag->Values()); }

    std::unique_ptr<MemoryPropertyBag> m_bag = std::make_unique<MemoryPropertyBag>();
};

struct JsonStore : Store
{
    PropertyBag &bag() override { return *m_bag; }
    void reopen() override
    {
        const QByteArray text = QJsonDocument(m_bag->Object()).toJson();
        m_bag = std::make_unique<JsonPropertyBag>(QJsonDocument::fromJson(text).object());
    }

    std::unique_ptr<JsonPropertyBag> m_bag = std::make_unique<JsonPropertyBag>();
};

struct IniStore : Store
{
    IniStore() { open(); }
    PropertyBag &bag() override { return *m_bag; }
    void reopen() override
    {
        m_settings->sync();
        open();
    }
    void open()
    {
        m_settings =
            std::make_unique<QSettings>(m_folder.filePath(u"host.ini"_s), QSettings::IniFormat);
        m_bag = std::make_unique<SettingsPropertyBag>(*m_settings, u"Table"_s);
    }

    QTemporaryDir m_folder;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<SettingsPropertyBag> m_bag;
};

template <typename Kind>
class AnyPropertyBag : public ::testing::Test
{
protected:
    PropertyBag &bag() { return store.bag(); }

    Kind store;
};

using Kinds = ::testing::Types<MemoryStore, JsonStore, IniStore>;
TYPED_TEST_SUITE(AnyPropertyBag, Kinds);

TYPED_TEST(AnyPropertyBag, ReadsTheDefaultOfWhatItDoesNotKeep)
{
    EXPECT_EQ(this->bag().ReadProperty(u"Caption"_s, u"none"_s), QVariant(u"none"_s));
    EXPECT_EQ(this->bag().ReadProperty(u"ListviewType"_s, defaultType), defaultType);
    EXPECT_FALSE(this->bag().ReadProperty(u"Caption"_s, QVariant()).isValid());
}

TYPED_TEST(AnyPropertyBag, KeepsValuesOfEachKind)
{
    const QString caption = u"Boiler, \"house\" 2 = ä\n€"_s;
    this->bag().WriteProperty(u"Caption"_s, caption, QString());
    this->bag().WriteProperty(u"Enabled"_s, false, true);
    this->bag().WriteProperty(u"ListviewType"_s, QVariant::fromValue(dsCode), defaultType);
    this->bag().WriteProperty(u"Scale"_s, 1.5, 1.0);
    this->store.reopen();
    EXPECT_EQ(this->bag().ReadProperty(u"Caption"_s, QString()), QVariant(caption));
    EXPECT_EQ(this->bag().ReadProperty(u"Enabled"_s, true), QVariant(false));
    EXPECT_EQ(this->bag().ReadProperty(u"Scale"_s, 1.0), QVariant(1.5));
    const QVariant type = this->bag().ReadProperty(u"ListviewType"_s, defaultType);
    EXPECT_EQ(type.metaType(), defaultType.metaType());
    EXPECT_EQ(type.value<LwType>(), dsCode);
}

TYPED_TEST(AnyPropertyBag, LeavesOutWhatEqualsTheDefault)
{
    this->bag().WriteProperty(u"Enabled"_s, false, true);
    this->bag().WriteProperty(u"Enabled"_s, true, true);
    EXPECT_EQ(this->bag().ReadProperty(u"Enabled"_s, false), QVariant(false));
}

TYPED_TEST(AnyPropertyBag, ReadsTheDefaultForAnotherKind)
{
    this->bag().WriteProperty(u"Enabled"_s, u"maybe"_s, true);
    this->bag().WriteProperty(u"ListviewType"_s, u"Inputs"_s, defaultType);
    this->bag().WriteProperty(u"Scale"_s, u"1,5"_s, 1.0);
    this->bag().WriteProperty(u"Caption"_s, QVariant(QVariantList{1, 2}), QString());
    this->bag().WriteProperty(u"Count"_s, 70000, qint16(0));
    this->store.reopen();
    EXPECT_EQ(this->bag().ReadProperty(u"Enabled"_s, true), QVariant(true));
    EXPECT_EQ(this->bag().ReadProperty(u"ListviewType"_s, defaultType), defaultType);
    EXPECT_EQ(this->bag().ReadProperty(u"Scale"_s, 1.0), QVariant(1.0));
    EXPECT_EQ(this->bag().ReadProperty(u"Caption"_s, u"none"_s), QVariant(u"none"_s));
    const QVariant count = QVariant::fromValue<qint16>(4);
    EXPECT_EQ(this->bag().ReadProperty(u"Count"_s, count), count);
}

TEST(MemoryPropertyBag, TakesATruthValueForNoNumberAndNoText)
{
    MemoryPropertyBag bag({{u"a"_s, true}, {u"b"_s, 1}, {u"c"_s, u"1"_s}});
    EXPECT_EQ(bag.ReadProperty(u"a"_s, 7), QVariant(7));
    EXPECT_EQ(bag.ReadProperty(u"a"_s, u"text"_s), QVariant(u"text"_s));
    EXPECT_EQ(bag.ReadProperty(u"b"_s, false), QVariant(false));
    EXPECT_EQ(bag.ReadProperty(u"c"_s, 7), QVariant(7));
}

TEST(JsonPropertyBag, KeepsUnknownNames)
{
    JsonPropertyBag bag(QJsonObject{{u"later"_s, QJsonObject{{u"x"_s, 1}}}});
    bag.WriteProperty(u"ListviewType"_s, QVariant::fromValue(dsLog), defaultType);
    EXPECT_EQ(QJsonDocument(bag.Object()).toJson(QJsonDocument::Compact),
              R"({"ListviewType":6,"later":{"x":1}})");
}

TEST(JsonPropertyBag, TakesWholeNumbersOnlyForAType)
{
    const JsonPropertyBag bag(QJsonObject{{u"a"_s, 6.5}, {u"b"_s, 6}, {u"c"_s, QJsonValue()}});
    EXPECT_EQ(bag.ReadProperty(u"a"_s, defaultType), defaultType);
    EXPECT_EQ(bag.ReadProperty(u"b"_s, defaultType).template value<LwType>(), dsLog);
    EXPECT_EQ(bag.ReadProperty(u"c"_s, u"none"_s), QVariant(u"none"_s));
}

TEST(SettingsPropertyBag, KeepsUnknownNamesAndOtherGroups)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"host.ini"_s);
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[Host]\nCaption=mine\n\n[Table]\nLater=5\nEnabled=1\nListviewType=\"6\"\n");
    }
    QSettings settings(path, QSettings::IniFormat);
    SettingsPropertyBag bag(settings, u"Table"_s);
    bag.WriteProperty(u"Caption"_s, u"Boiler"_s, QString());
    EXPECT_EQ(bag.ReadProperty(u"Enabled"_s, false), QVariant(true));
    EXPECT_EQ(bag.ReadProperty(u"ListviewType"_s, defaultType).value<LwType>(), dsLog);
    EXPECT_EQ(settings.value(u"Host/Caption"_s), QVariant(u"mine"_s));
    EXPECT_EQ(settings.value(u"Table/Later"_s), QVariant(u"5"_s));
    EXPECT_EQ(settings.value(u"Table/Caption"_s), QVariant(u"Boiler"_s));
    SettingsPropertyBag whole(settings);
    EXPECT_EQ(whole.ReadProperty(u"Host/Caption"_s, QString()), QVariant(u"mine"_s));
}

} // namespace
