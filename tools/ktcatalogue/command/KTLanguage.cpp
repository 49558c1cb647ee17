#include "KTLanguage.h"

#include "KTCommandLine.h"
#include "KTConsole.h"
#include "KTToolText.h"

#include <KTTranslation.h>

#include <QLocale>

namespace {

const QString OPTION = QStringLiteral("--language");
const QString END_OF_OPTIONS = QStringLiteral("--");
const QStringList LANGUAGES {QStringLiteral("de"), QStringLiteral("en")};

/** The first language of the environment that there is; empty for none, as in the locale "C". */
QString languageOfEnvironment()
{
    QString locale;
    for (const char *const variable : {"LANG", "LC_MESSAGES", "LC_ALL"}) {
        const QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty())
            locale = value;
    }
    // Without a locale nobody asked for a language, whatever list of them stands there.
    if (QLocale(locale).language() == QLocale::C)
        return QString();
    const QStringList wanted = qEnvironmentVariable("LANGUAGE").split(u':', Qt::SkipEmptyParts) << locale;
    for (const QString &name : wanted) {
        QString language = QLocale(name).name().section(u'_', 0, 0);
        if (LANGUAGES.contains(language))
            return language;
    }
    return QString();
}

/** Takes it out; null where it does not stand there, empty where its value is missing. */
QString takeOption(QStringList *arguments)
{
    for (int i = 0; i < arguments->size() && arguments->at(i) != END_OF_OPTIONS; ++i) {
        const QString argument = arguments->at(i);
        const bool hasValueBehind = argument == OPTION;
        if (!hasValueBehind && !argument.startsWith(OPTION + QLatin1Char('=')))
            continue;
        arguments->removeAt(i);
        if (!hasValueBehind)
            return argument.mid(OPTION.size() + 1);
        return i < arguments->size() ? arguments->takeAt(i) : QStringLiteral("");
    }
    return QString();
}

} // namespace

std::optional<KTExitCode> KTLanguage::install(QStringList *arguments)
{
    const QString chosen = takeOption(arguments);
    if (!chosen.isNull() && !LANGUAGES.contains(chosen))
        return KTCommandLine::failChoice(OPTION.mid(2), chosen, LANGUAGES);
    const QString language = chosen.isNull() ? languageOfEnvironment() : chosen;
    if (LANGUAGES.contains(language) && !KTTranslation::install(QLocale(language)))
        KTConsole::note(
            KTToolText::tr("ktcatalogue: the texts in the language '%1' are missing").arg(language));
    return std::nullopt;
}
