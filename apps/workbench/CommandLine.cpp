#include "CommandLine.h"

#include "Languages.h"
#include "shared/points/DisplayNames.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

struct CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    CommandLine()
    {
        parser.setApplicationDescription(tr("Shows a controller project."));
        parser.addHelpOption();
        parser.addVersionOption();
        parser.addOptions({screenshot, dark, scale, language, show});
        parser.addPositionalArgument(
            u"project"_s, tr("The project file; the sample project without one."), u"[project]"_s);
    }

    // A scale that is no number between a half and four counts as none.
    std::optional<double> givenScale() const
    {
        bool isNumber = false;
        const double factor = parser.value(scale).toDouble(&isNumber);
        return isNumber && factor >= 0.5 && factor <= 4 ? std::optional(factor) : std::nullopt;
    }

    // By its untranslated name; none for another one.
    std::optional<LwType> shown() const
    {
        if (!parser.isSet(show))
            return dsCode;
        for (int type = dsCode; type <= dsOutputParam; ++type) {
            if (displayName(static_cast<LwType>(type)) == parser.value(show))
                return static_cast<LwType>(type);
        }
        return std::nullopt;
    }

    bool hasKnownLanguage() const
    {
        const QString code = parser.value(language);
        const QList<QLocale> known = Languages::available();
        return code.isEmpty() ||
               std::any_of(known.begin(), known.end(), [&](const QLocale &locale) {
                   return QLocale::languageToCode(locale.language()) == code;
               });
    }

    const QCommandLineOption screenshot{
        u"screenshot"_s, tr("Write a picture of the window and quit."), u"file.png"_s};
    const QCommandLineOption dark{u"dark"_s, tr("Show everything on a dark ground.")};
    const QCommandLineOption scale{
        u"scale"_s, tr("Show everything larger or smaller, 0.5 to 4 times."), u"factor"_s};
    const QCommandLineOption language{u"language"_s, tr("Speak this language: en, de, es or fr."),
                                      u"code"_s};
    const QCommandLineOption show{u"show"_s, tr("Begin with this category, such as \"Inputs\"."),
                                  u"category"_s};
    QCommandLineParser parser;
};

} // namespace

void applyScale(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    CommandLine line;
    line.parser.parse(arguments); // what is wrong is told later
    if (const std::optional<double> factor = line.givenScale())
        qputenv("QT_SCALE_FACTOR", QByteArray::number(*factor));
}

std::optional<Options> readOptions(const QCoreApplication &application)
{
    CommandLine line;
    line.parser.process(application);
    if (line.parser.isSet(line.scale) && !line.givenScale()) {
        QTextStream(stderr) << CommandLine::tr("The scale is a number from 0.5 to 4.") << Qt::endl;
        return {};
    }
    if (!line.hasKnownLanguage()) {
        QTextStream(stderr) << CommandLine::tr("There is no translation for the language %1.")
                                   .arg(line.parser.value(line.language))
                            << Qt::endl;
        return {};
    }
    if (!line.shown()) {
        QTextStream(stderr)
            << CommandLine::tr("There is no category %1.").arg(line.parser.value(line.show))
            << Qt::endl;
        return {};
    }
    const QStringList projects = line.parser.positionalArguments();
    return Options{projects.value(0, QStringLiteral(ORVT_SAMPLE_PROJECT)),
                   line.parser.value(line.screenshot),
                   line.parser.isSet(line.dark),
                   line.parser.value(line.language),
                   *line.shown(),
                   !projects.isEmpty()};
}

} // namespace ORVTListview
