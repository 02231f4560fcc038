// SPDX-License-Identifier: MIT
//
// survey [OPTION...] SOURCE RESULTS: prints what a survey tells of SOURCE to RESULTS. The options
// are those of the requests: --purchase, --all, --allow-empty, --accept=KIND, --stop, which stops
// it at the first question whether it goes on.
//
// survey --convert [SOURCE NEW-FILE]...: converts each source as a survey does, and ends with 1
// where size or digest of a new file are not those that it tells.
#include "survey/survey.h"
#include "job/console.h"
#include "job/idledispatcher.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>

using namespace survey;

static QString toText(const Finding &finding)
{
    static const char *const levels[] = {"error", "loss", "doubt"};
    return QString("%1 %2 %3:%4%5 %6 [%7]")
        .arg(infoOf(finding.kind).name, levels[int(finding.level)])
        .arg(finding.position.line)
        .arg(finding.position.column)
        .arg(finding.isExact ? "" : " end", finding.code.isEmpty() ? "-" : finding.code,
             finding.details.join("|"));
}

static void print(QTextStream &results, const Survey &survey)
{
    const Counts &counts = survey.counts;
    results << "dialect " << int(survey.dialect) << ", version " << survey.version << ", date "
            << survey.date << '\n'
            << counts.sections << " sections, " << counts.groups << " groups, " << counts.goods
            << " goods, " << counts.offers << " offers, " << counts.partners << " partners, "
            << counts.documents << " documents, " << counts.lines << " lines\n";
    if (survey.stopped)
        results << "stopped\n";
    for (auto found = survey.found.cbegin(); found != survey.found.cend(); ++found)
        results << found.value() << " " << infoOf(found.key()).name << '\n';
    for (const Finding &finding : survey.findings)
        results << toText(finding) << '\n';
}

static bool converts(Request request, const QString &source, const QString &newFile)
{
    QFile file(newFile);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.close();
    request.source = source;
    const Conversion conversion = convert(request, newFile);
    if (!conversion.isWritten)
        return file.size() == 0;
    return file.open(QIODevice::ReadOnly) && file.size() == conversion.size &&
           QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256) ==
               conversion.digest;
}

int main(int argc, char *argv[])
{
    QCoreApplication::setEventDispatcher(new IdleDispatcher); // which the application owns
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    Request request;
    bool isConverting = false;
    while (arguments.value(0).startsWith("--")) {
        const QString option = arguments.takeFirst();
        isConverting |= option == "--convert";
        request.purchase |= option == "--purchase";
        request.all |= option == "--all";
        request.keepsTree |= option == "--keep-tree";
        request.allowEmpty |= option == "--allow-empty";
        if (option.startsWith("--accept="))
            request.accepted.insert(kindNamed(option.section('=', 1)).value());
        if (option == "--stop")
            request.goesOn = [](qint64, qint64) { return false; };
        if (option == "--change") {
            request.goesOn = [&request](qint64, qint64) {
                QFile file(request.source);
                return file.open(QIODevice::Append) && file.putChar(' ');
            };
        }
    }
    for (; isConverting && arguments.size() > 1; arguments = arguments.mid(2)) {
        if (!converts(request, arguments.at(0), arguments.at(1)))
            qFatal("not what is in the file: %s", qPrintable(arguments.at(1)));
    }
    if (isConverting)
        return 0;

    QFile file(arguments.value(1));
    if (!file.open(QIODevice::WriteOnly))
        return 1;
    QTextStream results(&file);
    useUtf8(results);
    request.source = arguments.value(0);
    print(results, check(request));
    return 0;
}
