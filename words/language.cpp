// SPDX-License-Identifier: MIT
#include "words/language.h"

#include <QLocale>
#include <QTranslator>

/// A static library needs it, and not in a namespace.
static void bringCatalogues()
{
    Q_INIT_RESOURCE(catalogues);
}

namespace words
{

static Language &spoken()
{
    static Language language = Language::English;
    return language;
}

/// What the first of the variables that is set says; empty if none is.
static QString localeOfEnvironment()
{
    for (const char *const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        QString locale = qEnvironmentVariable(variable);
        if (!locale.isEmpty())
            return locale;
    }
    return {};
}

static bool isSpoken(const QString &locale, QLocale::Language language)
{
    return QLocale(locale).language() == language;
}

Language languageOfUser()
{
    QString locale = localeOfEnvironment();
    // The plain locale is that of programs, whatever people prefer.
    const bool isPlain =
        locale.isEmpty() || locale.startsWith(u'C') || locale == QLatin1String("POSIX");
    for (const QString &preferred : qEnvironmentVariable("LANGUAGE").split(u':')) {
        if (!isPlain && isSpoken(preferred, QLocale::Russian))
            return Language::Russian;
        if (!isPlain && isSpoken(preferred, QLocale::English))
            return Language::English;
    }
#ifdef Q_OS_WIN
    if (locale.isEmpty())
        locale = QLocale::system().uiLanguages().value(0);
#endif
    return isSpoken(locale, QLocale::Russian) ? Language::Russian : Language::English;
}

Speaking::Speaking(Language language) : before(spoken())
{
    spoken() = language;
}

Speaking::~Speaking()
{
    spoken() = before;
}

/// The texts of a language, compiled of `words/xml2ryk_*.ts`.
class Catalogue : public QTranslator
{
public:
    explicit Catalogue(const QString &language)
    {
        bringCatalogues();
        if (!load(QStringLiteral(":/words/xml2ryk_%1.qm").arg(language)))
            qFatal("no catalogue for %s", qPrintable(language));
    }
};

QString Words::tr(const char *text, const char *comment, int number)
{
    static const Catalogue english(QStringLiteral("en"));
    static const Catalogue russian(QStringLiteral("ru"));
    const Catalogue &catalogue = spoken() == Language::Russian ? russian : english;
    QString words = catalogue.translate("Words", text, comment, number);
    if (words.isNull())
        words = QString::fromUtf8(text);
    return words.replace(QLatin1String("%n"), QString::number(number));
}

} // namespace words
