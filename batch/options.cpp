// SPDX-License-Identifier: MIT
#include "batch/options.h"

#include "batch/exitcodes.h"
#include "words/language.h"

#include <QVector>

#include <algorithm>
#include <utility>

namespace batch
{

using words::Words;

namespace
{

constexpr auto programName = "xml2ryk-batch";

struct CommandInfo {
    Command command;
    const char *name;
    QVector<const char *> usages; ///< what stands behind the name and the options
    const char *effect;
};

const QVector<CommandInfo> &commands()
{
    static const QVector<CommandInfo> table = {
        {Command::Check,
         "check",
         {QT_TRANSLATE_NOOP("Words", "SOURCE...")},
         QT_TRANSLATE_NOOP("Words", "tells what a conversion would leave out, and writes nothing")},
        {Command::Convert,
         "convert",
         {QT_TRANSLATE_NOOP("Words", "SOURCE DESTINATION"),
          QT_TRANSLATE_NOOP("Words", "--into FOLDER SOURCE...")},
         QT_TRANSLATE_NOOP("Words", "puts a whole exchange file in the place of the old one, or "
                                    "leaves that as it is")},
        {Command::Verify,
         "verify",
         {QT_TRANSLATE_NOOP("Words", "EXCHANGE-FILE...")},
         QT_TRANSLATE_NOOP("Words", "tells whether an exchange file is whole")},
    };
    return table;
}

struct Option {
    const char *name;
    const char *value; ///< what help calls it; nullptr: it has none
    int commands;
    const char *effect;
    bool (*set)(Options &options, const QString &value); ///< false: it can't be this
};

bool setNumber(int &number, const QString &value, int least, int most)
{
    bool isNumber = false;
    number = value.toInt(&isNumber);
    return isNumber && number >= least && number <= most;
}

bool setName(QString &name, const QString &value)
{
    name = value;
    return !name.isEmpty();
}

bool accept(Options &options, const QString &value)
{
    const std::optional<survey::Kind> kind = survey::kindNamed(value);
    if (!kind || survey::infoOf(*kind).level != survey::Level::Loss)
        return false;
    options.run.request.accepted.insert(*kind);
    return true;
}

constexpr int mostNumber = 1000 * 1000;
constexpr int mostJobs = 1000;
constexpr int mostPercent = 100;

constexpr int check = int(Command::Check);
constexpr int convert = int(Command::Convert);
constexpr int verify = int(Command::Verify);

const QVector<Option> &optionTable()
{
    static const QVector<Option> table = {
        {"--purchase", nullptr, check | convert | verify,
         QT_TRANSLATE_NOOP("Words", "the documents are purchases, as in xml2ryk"),
         [](Options &options, const QString &) { return options.run.request.purchase = true; }},
        {"--json", nullptr, check | convert | verify,
         QT_TRANSLATE_NOOP("Words", "one object a line for each source"),
         [](Options &options, const QString &) { return options.json = true; }},
        {"--all", nullptr, check | convert,
         QT_TRANSLATE_NOOP("Words", "every finding, not the first ten of a kind"),
         [](Options &options, const QString &) { return options.run.request.all = true; }},
        {"--jobs", QT_TRANSLATE_NOOP("Words", "N"), check | convert,
         QT_TRANSLATE_NOOP("Words", "sources at the same time; the number of cores if absent"),
         [](Options &options, const QString &value) {
             return setNumber(options.run.jobs, value, 1, mostJobs);
         }},
        {"--timeout", QT_TRANSLATE_NOOP("Words", "SECONDS"), check | convert | verify,
         QT_TRANSLATE_NOOP("Words", "how long a source may take"),
         [](Options &options, const QString &value) {
             return setNumber(options.run.timeoutSeconds, value, 1, mostNumber);
         }},
        {"--allow-empty", nullptr, check | convert,
         QT_TRANSLATE_NOOP("Words", "a source of trade data with nothing in it is fine"),
         [](Options &options, const QString &) { return options.run.request.allowEmpty = true; }},
        {"--accept", QT_TRANSLATE_NOOP("Words", "KIND"), check | convert,
         QT_TRANSLATE_NOOP("Words", "this kind of loss counts as a doubt; repeatable"), accept},
        {"--into", QT_TRANSLATE_NOOP("Words", "FOLDER"), convert,
         QT_TRANSLATE_NOOP("Words", "where exchange files go, named like their sources with .txt"),
         [](Options &options, const QString &value) { return setName(options.into, value); }},
        {"--wait", QT_TRANSLATE_NOOP("Words", "SECONDS"), convert,
         QT_TRANSLATE_NOOP("Words", "how long to wait for another run's destination; 0 if absent"),
         [](Options &options, const QString &value) {
             return setNumber(options.run.waitSeconds, value, 0, mostNumber);
         }},
        {"--strict", nullptr, convert, QT_TRANSLATE_NOOP("Words", "a loss keeps the old file"),
         [](Options &options, const QString &) { return options.run.strict = true; }},
        {"--max-drop", QT_TRANSLATE_NOOP("Words", "PERCENT"), convert,
         QT_TRANSLATE_NOOP(
             "Words",
             "keeps the old file where goods or documents fell by more than this against it"),
         [](Options &options, const QString &value) {
             return setNumber(options.run.maxDrop.emplace(), value, 0, mostPercent);
         }},
        {"--keep", QT_TRANSLATE_NOOP("Words", "N"), convert,
         QT_TRANSLATE_NOOP("Words", "the last N old files stay beside the new one, with numbers"),
         [](Options &options, const QString &value) {
             return setNumber(options.run.keep, value, 0, mostJobs);
         }},
        {"--source", QT_TRANSLATE_NOOP("Words", "FILE"), verify,
         QT_TRANSLATE_NOOP("Words", "the counts are compared with this source"),
         [](Options &options, const QString &value) { return setName(options.source, value); }},
        {"--log", QT_TRANSLATE_NOOP("Words", "FILE"), check | convert | verify,
         QT_TRANSLATE_NOOP("Words", "gets a line for each source behind those it has"),
         [](Options &options, const QString &value) { return setName(options.log, value); }},
        {"--help", nullptr, 0, QT_TRANSLATE_NOOP("Words", "prints this, and does nothing else"),
         [](Options &options, const QString &) { return options.isForHelp = true; }},
        {"--version", nullptr, 0,
         QT_TRANSLATE_NOOP("Words", "prints the version, and does nothing else"),
         [](Options &options, const QString &) { return options.isForVersion = true; }},
    };
    return table;
}

QString nameOf(Command command)
{
    for (const CommandInfo &info : commands()) {
        if (info.command == command)
            return QLatin1String(info.name);
    }
    return {};
}

/// The option of this name; nullptr if there is none.
const Option *findOption(const QString &name)
{
    for (const Option &option : optionTable()) {
        if (name == QLatin1String(option.name))
            return &option;
    }
    return nullptr;
}

/// Reads arguments until one can't be had.
class Parser
{
public:
    explicit Parser(QStringList given) : arguments(std::move(given)) {}

    bool parse()
    {
        if (!takeCommand())
            return false;
        while (!arguments.isEmpty() && !options.isForHelp && !options.isForVersion) {
            const QString argument = arguments.takeFirst();
            if (argument == QLatin1String("--"))
                break;
            const bool isOption = argument.size() > 1 && argument.startsWith(QLatin1Char('-'));
            if (isOption ? !takeOption(argument) : !takeFile(argument))
                return false;
        }
        if (options.isForHelp || options.isForVersion)
            return true;
        for (const QString &argument : std::as_const(arguments)) {
            if (!takeFile(argument))
                return false;
        }
        return hasAllFiles();
    }

    Options options;
    QString refusal;

private:
    bool refuse(const QString &text)
    {
        refusal = text;
        return false;
    }

    bool takeCommand()
    {
        if (arguments.isEmpty())
            return refuse(Words::tr("a command is missing"));
        if (arguments.constFirst().startsWith(QLatin1Char('-')))
            return true;
        const QString name = arguments.takeFirst();
        for (const CommandInfo &info : commands()) {
            if (name == QLatin1String(info.name)) {
                options.command = info.command;
                return true;
            }
        }
        return refuse(Words::tr("there is no command %1").arg(name));
    }

    bool takeOption(const QString &argument)
    {
        const auto equals = argument.indexOf(QLatin1Char('='));
        const QString name = argument.left(equals);
        const Option *const option = findOption(name);
        if (option == nullptr)
            return refuse(Words::tr("there is no option %1").arg(name));
        if (option->commands != 0 && !options.command)
            return refuse(Words::tr("the option %1 stands behind a command").arg(name));
        if (option->commands != 0 && (option->commands & int(*options.command)) == 0)
            return refuse(Words::tr("%1 has no option %2").arg(nameOf(*options.command), name));
        if (option->value == nullptr && equals >= 0)
            return refuse(Words::tr("the option %1 has no value").arg(name));
        QString value = argument.mid(equals + 1);
        if (option->value != nullptr && equals < 0) {
            if (arguments.isEmpty())
                return refuse(Words::tr("the option %1 lacks its value").arg(name));
            value = arguments.takeFirst();
        }
        if (!option->set(options, value))
            return refuse(Words::tr("the option %1 can't be \"%2\"").arg(name, value));
        return true;
    }

    bool takeFile(const QString &name)
    {
        if (!options.command)
            return refuse(Words::tr("a command is missing"));
        if (name.isEmpty())
            return refuse(Words::tr("the name of a file is empty"));
        options.files.append(name);
        return true;
    }

    bool hasAllFiles()
    {
        if (!options.command)
            return refuse(Words::tr("a command is missing"));
        if (options.files.isEmpty())
            return refuse(Words::tr("the name of a file is missing"));
        if (*options.command == Command::Convert && options.into.isNull()) {
            if (options.files.size() == 1)
                return refuse(Words::tr("the destination is missing"));
            if (options.files.size() > 2)
                return refuse(Words::tr("several sources need --into and a folder"));
            options.destination = options.files.takeLast();
        }
        if (!options.source.isNull() && options.files.size() > 1)
            return refuse(Words::tr("--source is for one exchange file"));
        return true;
    }

    QStringList arguments;
};

/// Rows of two columns, the first as wide as its longest text.
QString inColumns(const QVector<QPair<QString, QString>> &rows)
{
    int width = 0;
    for (const auto &row : rows)
        width = std::max(width, int(row.first.size()));
    QString text;
    for (const auto &row : rows)
        text += QLatin1String("  ") + row.first.leftJustified(width + 2) + row.second +
                QLatin1Char('\n');
    return text;
}

QString usage(const CommandInfo &info)
{
    QString text;
    for (const char *files : info.usages)
        text += QStringLiteral("  %1 %2 [%3] %4\n")
                    .arg(QLatin1String(programName), QLatin1String(info.name), Words::tr("OPTIONS"),
                         Words::tr(files));
    return text;
}

} // namespace

std::optional<Options> parseArguments(const QStringList &arguments, QString &refusal)
{
    Parser parser(arguments);
    if (parser.parse())
        return parser.options;
    refusal = parser.refusal;
    return std::nullopt;
}

QString help(std::optional<Command> command)
{
    QString usages;
    QVector<QPair<QString, QString>> effects;
    for (const CommandInfo &info : commands()) {
        if (command && info.command != *command)
            continue;
        usages += usage(info);
        effects.append({QLatin1String(info.name), Words::tr(info.effect)});
    }
    QVector<QPair<QString, QString>> options;
    for (const Option &option : optionTable()) {
        if (command ? (option.commands & int(*command)) == 0 : option.commands != 0)
            continue;
        QString name = QLatin1String(option.name);
        if (option.value != nullptr)
            name += QLatin1Char(' ') + Words::tr(option.value);
        options.append({name, Words::tr(option.effect)});
    }
    QVector<QPair<QString, QString>> codes;
    for (const ExitCodeInfo &info : exitCodes())
        codes.append({QString::fromLatin1(info.code), Words::tr(info.meaning)});

    const QChar newLine = QLatin1Char('\n');
    QString text = Words::tr("Usage:") + newLine + usages + newLine + inColumns(effects) + newLine +
                   Words::tr("Options:") + newLine + inColumns(options) + newLine;
    if (!command)
        text += Words::tr("\"%1 --help\" tells more")
                    .arg(QLatin1String(programName) + QStringLiteral(" check")) +
                newLine + newLine;
    return text + Words::tr("Exit codes, of several the gravest, which is 4, then 2, then 3:") +
           newLine + inColumns(codes);
}

} // namespace batch
