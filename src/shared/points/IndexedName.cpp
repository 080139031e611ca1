#include <ORVTListview/IndexedName.h>

#include <utility>
#include <vector>

namespace ORVTListview {
namespace {

class PlainIndexedName final : public IndexedName
{
public:
    PlainIndexedName(QString name, QString format, qint32 lower, qint32 upper)
        : m_name(std::move(name))
        , m_format(std::move(format))
        , m_lower(lower)
        , m_upper(upper)
    {
    }

    QString Name() const override { return m_name; }
    QString NumberFormat() const override { return m_format; }
    qint32 LowerBound() const override { return m_lower; }
    qint32 UpperBound() const override { return m_upper; }

private:
    QString m_name;
    QString m_format;
    qint32 m_lower;
    qint32 m_upper;
};

} // namespace

IndexedName::~IndexedName() = default;
IndexedNameCollection::~IndexedNameCollection() = default;

struct IndexedNameList::Private
{
    std::vector<std::unique_ptr<IndexedName>> items;
};

IndexedNameList::IndexedNameList()
    : d(std::make_unique<Private>())
{
}

IndexedNameList::~IndexedNameList() = default;

void IndexedNameList::Add(const QString &Name, const QString &NumberFormat, qint32 LowerBound,
                          qint32 UpperBound)
{
    d->items.push_back(
        std::make_unique<PlainIndexedName>(Name, NumberFormat, LowerBound, UpperBound));
}

qint32 IndexedNameList::Count() const
{
    return static_cast<qint32>(d->items.size());
}

const IndexedName *IndexedNameList::Item(qint32 Index) const
{
    if (Index < 1 || Index > Count())
        return nullptr;
    return d->items[static_cast<std::size_t>(Index) - 1].get();
}

} // namespace ORVTListview
