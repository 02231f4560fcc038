// SPDX-License-Identifier: MIT
#include "survey/loadfailure.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace survey
{

/// What the parser says, and what people make of it. It says the same of several faults.
static const struct {
    const char *message;
    const char *fault;
} faults[] = {
    {"unexpected end of file", "end"},                          // in the middle
    {"tag mismatch", "tag"},                                    // another one ends
    {"letter is expected", "reference"},                        // a bare "&"
    {"error occurred while parsing reference", "reference"},    // the same
    {"error occurred while parsing element", "element"},        // a bare "<", or a broken tag
    {"error occurred while parsing content", "content"},        // "]]>", or an unknown "<!"
    {"error occurred while parsing comment", "comment"},        // "--" in it
    {"invalid name for processing instruction", "declaration"}, // not at the beginning
};

// What the parser can't tell.
static const char *const nothingFault = "nothing"; // the source has no bytes
static const char *const htmlFault = "html";       // a page that is not even well-formed
static const char *const noXmlFault = "no-xml";    // its first character is not the one of XML

static const struct {
    LoadFailure failure;
    const char *limit;
} limits[] = {
    {LoadFailure::TooDeep, "nesting"},
    {LoadFailure::TooManyAttributes, "attributes"},
    {LoadFailure::TooManyBrackets, "brackets"},
    {LoadFailure::TooManyEntities, "entities"},
    {LoadFailure::ParameterEntity, "parameter-entity"},
    {LoadFailure::TooMuchExpansion, "expansion"},
    {LoadFailure::OutOfMemory, "memory"},
};

static QString faultOf(const Loading &loading, bool beginsAsHtml)
{
    if (beginsAsHtml)
        return QLatin1String(htmlFault);
    const auto *const fault =
        std::find_if(std::begin(faults), std::end(faults), [&](const auto &known) {
            return loading.message == QLatin1String(known.message);
        });
    if (loading.failedAt.line == 1 && loading.failedAt.column == 1)
        return QLatin1String(fault == std::begin(faults) ? nothingFault : noXmlFault);
    return QLatin1String(fault != std::end(faults) ? fault->fault : "other");
}

QString whyUnreadable(const QString &path, const QString &systemSays)
{
#ifdef Q_OS_WIN
    const QFileInfo file(path);
    if (!file.exists())
        return QStringLiteral("No such file or directory");
    if (file.isDir())
        return QStringLiteral("Is a directory");
#else
    Q_UNUSED(path)
#endif
    return systemSays;
}

Finding failureFinding(const Loading &loading, bool beginsAsHtml)
{
    const auto finding = [&](Kind kind, const SourcePosition &position,
                             const QStringList &details) {
        return Finding{kind, infoOf(kind).level, position, true, {}, details};
    };
    if (loading.failure == LoadFailure::NotWellFormed)
        return finding(Kind::NotWellFormed, loading.failedAt,
                       {faultOf(loading, beginsAsHtml), loading.message});
    for (const auto &[failure, limit] : limits) {
        if (loading.failure != failure)
            continue;
        const bool hasPosition = failure != LoadFailure::OutOfMemory;
        return finding(Kind::Limit, hasPosition ? loading.failedAt : SourcePosition(),
                       {QLatin1String(limit)});
    }
    return finding(Kind::NotReadable, {}, {loading.message});
}

} // namespace survey
