// SPDX-License-Identifier: MIT
#include "window/texts.h"

#include "words/findings.h"
#include "words/language.h"
#include "words/outcomes.h"

#include <QDir>
#include <QFileInfo>

using words::Words;

namespace window
{

QString sentence(exporter::Loss loss)
{
    using exporter::Loss;
    using survey::Kind;
    const auto ofKind = [](Kind kind) {
        return words::sentence({kind, survey::infoOf(kind).level, {}, true, {}, {}});
    };
    switch (loss) {
    case Loss::NoPartner:
        return ofKind(Kind::NoPartner);
    case Loss::NoNumber:
        return ofKind(Kind::NoNumber);
    case Loss::NoLines:
        return ofKind(Kind::NoLines);
    case Loss::BehindTheEnd:
        return Words::tr("it stands behind a document without lines, at which the export ends");
    case Loss::NoCode:
        return Words::tr("it has no code");
    }
    return {};
}

QString placeInWords(const SourcePosition &position)
{
    if (position.line == 0)
        return {};
    return Words::tr("line %1, column %2").arg(position.line).arg(position.column);
}

QString inWords(const survey::Finding &finding)
{
    const QString place = placeInWords(finding.position);
    const QString sentence = words::sentence(finding);
    return place.isEmpty() ? sentence : place + QLatin1String(": ") + sentence;
}

QStringList errorsInWords(const survey::Survey &survey)
{
    QStringList lines;
    for (const survey::Finding &finding : survey.findings) {
        if (finding.level == survey::Level::Error)
            lines.append(inWords(finding));
    }
    if (lines.isEmpty() && survey.outOfMemory)
        lines.append(Words::tr("memory ran out"));
    return lines;
}

QString whyNotReadable(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists() || file.isFile() || file.isDir())
        return {};
    // Reading it might never end.
    return QDir::toNativeSeparators(path) + u'\n' +
           words::systemWords(QStringLiteral("Not a regular file"));
}

QStringList outcomeInWords(const delivery::Outcome &outcome)
{
    using File = delivery::Replacement::Outcome;
    const QString file = QDir::toNativeSeparators(outcome.destination);
    QStringList lines;
    const QString reason = words::sentence(outcome.reason);
    if (!reason.isEmpty() || outcome.exitCode == delivery::NotRead) {
        lines.append(Words::tr("%1 was not written.").arg(file));
        if (!reason.isEmpty())
            lines.append(reason);
        return lines + errorsInWords(outcome.survey);
    }
    lines.append((outcome.file == File::Created    ? Words::tr("%1 was created: %2.")
                  : outcome.file == File::Replaced ? Words::tr("%1 was replaced: %2.")
                                                   : Words::tr("%1 has it all already: %2."))
                     .arg(file, words::countsInWords(outcome.survey.counts)));
    const QString levels = words::levelsInWords(outcome.survey);
    if (!levels.isEmpty())
        lines.append(levels);
    return lines;
}

} // namespace window
