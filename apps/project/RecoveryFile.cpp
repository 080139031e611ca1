#include "project/RecoveryFile.h"

#include "base/Utf8Text.h"
#include "project/ProjectTexts.h"

#include <QtCore/QFileInfo>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// What is read again is in English whatever the language.
constexpr QByteArrayView projectMark = "\nproject: ";
constexpr QByteArrayView timeMark = "\nkept: ";
constexpr QByteArrayView countMark = "\nprograms: "; // where there are several
constexpr QByteArrayView partMark = "\n==== ";
constexpr QByteArrayView partEnd = " bytes ====\n";

QByteArray part(const QByteArray &name, const QByteArray &content)
{
    return partMark.toByteArray() + name + ", " + QByteArray::number(content.size()) +
           partEnd.toByteArray() + content;
}

QByteArray programPart(const QByteArray &name, const QString &program)
{
    return part(name, QString(program).replace(u"\r\n"_s, u"\n"_s).toUtf8());
}

QByteArray otherPrograms(const QStringList &programs)
{
    QByteArray parts;
    for (qsizetype i = 1; i < programs.size(); ++i)
        parts += programPart("program " + QByteArray::number(i + 1), programs[i]) + '\n';
    return parts;
}

QString programOf(const QByteArray &part)
{
    return utf8Text(part).replace(u"\n"_s, u"\r\n"_s);
}

// Reads on behind what was read last.
class RecoveryReading
{
public:
    explicit RecoveryReading(const QByteArray &text)
        : m_text(text)
    {
    }

    std::optional<QByteArray> line(QByteArrayView mark)
    {
        const qsizetype found = m_text.indexOf(mark, m_at);
        const qsizetype end = found < 0 ? -1 : m_text.indexOf('\n', found + mark.size());
        if (end < 0)
            return std::nullopt;
        m_at = end;
        return m_text.sliced(found + mark.size(), end - found - mark.size());
    }

    // The next line, if it has the mark.
    std::optional<QByteArray> nextLine(QByteArrayView mark)
    {
        return QByteArrayView(m_text).sliced(m_at).startsWith(mark) ? line(mark) : std::nullopt;
    }

    std::optional<QByteArray> part()
    {
        const qsizetype begin = m_text.indexOf(partMark, m_at);
        const qsizetype end = begin < 0 ? -1 : m_text.indexOf(partEnd, begin);
        if (end < 0)
            return std::nullopt;
        const QByteArray head = m_text.sliced(begin, end - begin);
        bool isNumber = false;
        const qsizetype size = head.sliced(head.lastIndexOf(' ') + 1).toLongLong(&isNumber);
        const qsizetype from = end + partEnd.size();
        if (!isNumber || size < 0 || from + size > m_text.size())
            return std::nullopt;
        m_at = from + size;
        return m_text.sliced(from, size);
    }

private:
    QByteArray m_text;
    qsizetype m_at = 0;
};

} // namespace

QByteArray recoveryText(const RecoveredWork &work)
{
    const QString file = QFileInfo(work.projectFile).fileName();
    const qsizetype count = work.programs.size();
    return ProjectTexts::tr("Work on %1 that is not saved. The workbench offers it when the "
                            "project is opened the next time.")
               .arg(file)
               .toUtf8() +
           '\n' + projectMark.toByteArray() + work.projectFile.toUtf8() + timeMark.toByteArray() +
           work.when.toUTC().toString(Qt::ISODate).toUtf8() +
           (count > 1 ? countMark.toByteArray() + QByteArray::number(count) : QByteArray()) + '\n' +
           programPart("program", work.programs.value(0)) + '\n' + part("project file", work.json) +
           '\n' + otherPrograms(work.programs);
}

std::optional<RecoveredWork> readRecovery(const QByteArray &text)
{
    RecoveryReading reading(text);
    const auto project = reading.line(projectMark);
    const auto when = project ? reading.line(timeMark) : std::nullopt;
    const auto count = when ? reading.nextLine(countMark) : std::nullopt;
    const auto program = when ? reading.part() : std::nullopt;
    const auto json = program ? reading.part() : std::nullopt;
    if (!json)
        return std::nullopt;
    QStringList programs{programOf(*program)};
    const int more = count ? count->toInt() : 1;
    while (programs.size() < more) {
        const auto other = reading.part();
        if (!other)
            return std::nullopt;
        programs.append(programOf(*other));
    }
    return RecoveredWork{QString::fromUtf8(*project),
                         QDateTime::fromString(QString::fromUtf8(*when), Qt::ISODate), *json,
                         programs};
}

} // namespace ORVTListview
