// SPDX-License-Identifier: MIT
#include "words/outcomes.h"

#include "words/language.h"

#include <algorithm>
#include <iterator>

using delivery::Reason;
using delivery::Replacement;

namespace words
{

static QString sentence(Replacement::Hindrance hindrance)
{
    using Hindrance = Replacement::Hindrance;
    switch (hindrance) {
    case Hindrance::None:
        break;
    case Hindrance::NoFolder:
        return Words::tr("there is no folder for the exchange file");
    case Hindrance::NotRegular:
        return Words::tr("the destination is no ordinary file");
    case Hindrance::IsSource:
        return Words::tr("the destination is the source itself");
    case Hindrance::NotWritable:
        return Words::tr("the old exchange file can't be written");
    case Hindrance::HasMoreNames:
        return Words::tr("the old exchange file has other names, hard links, which would keep the "
                         "old content");
    case Hindrance::OwnerNotKept:
        return Words::tr("the new exchange file can't get the owner, the group and the rights of "
                         "the old one");
    case Hindrance::Held:
        return Words::tr("another run is writing this exchange file");
    case Hindrance::NotCreated:
        return Words::tr("no new file can be created beside the destination");
    case Hindrance::NotWhole:
        return Words::tr("the new exchange file is not what was written into it");
    case Hindrance::NotFlushed:
        return Words::tr("the new exchange file may not have reached the disk");
    case Hindrance::OldNotKept:
        return Words::tr("the old exchange files can't be kept with numbers");
    case Hindrance::NotRenamed:
        return Words::tr("the new exchange file can't take the place of the old one");
    }
    return {};
}

// The toolkit says some of them itself; the others come from the C library, from Windows, and from
// wine, in this order.
static const struct {
    const char *message; // without a full stop
    const char *words;
} knownMessages[] = {
    {"No such file or directory", QT_TRANSLATE_NOOP("Words", "there is no such file or folder")},
    {"The system cannot find the file specified",
     QT_TRANSLATE_NOOP("Words", "there is no such file or folder")},
    {"The system cannot find the path specified",
     QT_TRANSLATE_NOOP("Words", "there is no such file or folder")},
    {"File not found", QT_TRANSLATE_NOOP("Words", "there is no such file or folder")},
    {"Path not found", QT_TRANSLATE_NOOP("Words", "there is no such file or folder")},
    {"Permission denied", QT_TRANSLATE_NOOP("Words", "there is no right to do so")},
    {"Operation not permitted", QT_TRANSLATE_NOOP("Words", "there is no right to do so")},
    {"Access is denied", QT_TRANSLATE_NOOP("Words", "there is no right to do so")},
    {"Access denied", QT_TRANSLATE_NOOP("Words", "there is no right to do so")},
    {"Is a directory", QT_TRANSLATE_NOOP("Words", "it is a folder")},
    {"file to open is a directory", QT_TRANSLATE_NOOP("Words", "it is a folder")},
    {"Not a directory", QT_TRANSLATE_NOOP("Words", "a part of the path is no folder")},
    {"The directory name is invalid",
     QT_TRANSLATE_NOOP("Words", "a part of the path is no folder")},
    {"No space left on device", QT_TRANSLATE_NOOP("Words", "the disk is full")},
    {"There is not enough space on the disk", QT_TRANSLATE_NOOP("Words", "the disk is full")},
    {"The disk is full", QT_TRANSLATE_NOOP("Words", "the disk is full")},
    {"Disk full", QT_TRANSLATE_NOOP("Words", "the disk is full")},
    {"Disk quota exceeded", QT_TRANSLATE_NOOP("Words", "the disk space of this user is used up")},
    {"File too large", QT_TRANSLATE_NOOP("Words", "a file may not become so large")},
    {"Read-only file system", QT_TRANSLATE_NOOP("Words", "the disk is write-protected")},
    {"The media is write protected", QT_TRANSLATE_NOOP("Words", "the disk is write-protected")},
    {"Write protected", QT_TRANSLATE_NOOP("Words", "the disk is write-protected")},
    {"Input/output error", QT_TRANSLATE_NOOP("Words", "the disk reports an error")},
    {"The process cannot access the file because it is being used by another process",
     QT_TRANSLATE_NOOP("Words", "another program has it open")},
    {"Sharing violation", QT_TRANSLATE_NOOP("Words", "another program has it open")},
    {"Too many levels of symbolic links",
     QT_TRANSLATE_NOOP("Words", "its links lead to each other")},
    {"File name too long", QT_TRANSLATE_NOOP("Words", "the name is too long")},
    {"No such device or address", QT_TRANSLATE_NOOP("Words", "there is no such device")},
    {"File exists", QT_TRANSLATE_NOOP("Words", "something else has that name")},
    {"Too many open files", QT_TRANSLATE_NOOP("Words", "too many files are open")},
    {"Cannot allocate memory", QT_TRANSLATE_NOOP("Words", "memory ran out")},
    // Those of batch/sources.cpp.
    {"No sources in folder", QT_TRANSLATE_NOOP("Words", "the folder has no *.xml")},
    {"Name is not text", QT_TRANSLATE_NOOP("Words", "the name of the file is no text")},
    {"Standard input", QT_TRANSLATE_NOOP("Words", "it is standard input, which is not read")},
    {"Not a regular file", QT_TRANSLATE_NOOP("Words", "it is no ordinary file")},
};

QString systemWords(const QString &systemMessage)
{
    QString message = systemMessage.trimmed();
    if (message.endsWith(u'.'))
        message.chop(1);
    const auto *const known =
        std::find_if(std::begin(knownMessages), std::end(knownMessages),
                     [&](const auto &one) { return message == QLatin1String(one.message); });
    return known != std::end(knownMessages) ? Words::tr(known->words) : message;
}

QString sentence(const Reason &reason)
{
    switch (reason.kind) {
    case Reason::Kind::None:
        break;
    case Reason::Kind::TimedOut:
        return Words::tr("the time that a source may take is over");
    case Reason::Kind::Died:
        return Words::tr("the process that read the source died");
    case Reason::Kind::NotStarted:
        return Words::tr("no process could be started to read the source");
    case Reason::Kind::OutOfMemory:
        return Words::tr("memory ran out");
    case Reason::Kind::Hindered: {
        const QString why = systemWords(reason.message);
        const QString what = sentence(reason.hindrance);
        return why.isEmpty() ? what : what + QLatin1String(": ") + why;
    }
    case Reason::Kind::NotWritten:
        return Words::tr("the exchange file could not be written whole");
    case Reason::Kind::Loss:
        return Words::tr("it is not written, since something would be left out");
    case Reason::Kind::FewerGoods:
        return Words::tr("the old file is kept: it has %n good(s), the new one would have %1",
                         nullptr, reason.before)
            .arg(reason.now);
    case Reason::Kind::FewerDocuments:
        return Words::tr("the old file is kept: it has %n document(s), the new one would have %1",
                         nullptr, reason.before)
            .arg(reason.now);
    }
    return {};
}

} // namespace words
