// SPDX-License-Identifier: MIT
#include "window/saving.h"

#include "window/infobar.h"
#include "window/tables.h"
#include "window/texts.h"
#include "words/language.h"
#include "words/outcomes.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>

#include <new>
#include <utility>

using words::Words;

namespace window
{

static const QString destinationKey = QStringLiteral("destinationFolder");

Saving::Saving(Desk &desk, QSettings &settings, InfoBar &infoBar, QWidget &window)
    : desk(desk), settings(settings), infoBar(infoBar), window(window)
{
}

void Saving::askForDestination()
{
    const std::shared_ptr<const Source> source = desk.source();
    const QFileInfo file(source->path);
    const QString last = settings.value(destinationKey).toString();
    const QString folder = !last.isEmpty() && QDir(last).exists() ? last : file.path();
    const QString proposed = folder + u'/' + file.completeBaseName() + QLatin1String(".txt");
    const QString path = QFileDialog::getSaveFileName(&window, Words::tr("Convert to"), proposed,
                                                      Words::tr("Exchange files (*.txt)"));
    if (!path.isEmpty())
        convert(*source, path);
}

void Saving::convert(const Source &source, const QString &destination)
{
    settings.setValue(destinationKey, QFileInfo(destination).absolutePath());
    const QString why = whyNotReadable(source.path);
    if (!why.isEmpty()) {
        infoBar.tell(why);
        return;
    }
    infoBar.hide();
    delivery::RunOptions options;
    options.request.purchase = source.purchase;
    options.jobs = 1;
    conversion = std::make_unique<Conversion>(options, delivery::Job{source.path, destination, {}});
    connect(conversion.get(), &QThread::finished, this, [this] { endConversion(); });
    conversion->start();
    changed();
}

void Saving::stop()
{
    if (conversion)
        conversion->stop();
}

void Saving::endConversion()
{
    const std::unique_ptr<Conversion> ended = std::move(conversion);
    if (ended->outcome())
        infoBar.tell(outcomeInWords(*ended->outcome()).join(u'\n'));
    else
        infoBar.tellToo(Words::tr("The conversion was stopped; the destination is as it was."));
    changed();
}

void Saving::askForTable()
{
    const std::shared_ptr<const Source> source = desk.source();
    const QFileInfo file(source->path);
    const QString proposed =
        file.path() + u'/' + file.completeBaseName() + QLatin1String("-findings.csv");
    const QString path = QFileDialog::getSaveFileName(
        &window, Words::tr("Save findings as a table"), proposed, Words::tr("Tables (*.csv)"));
    if (!path.isEmpty())
        saveFindings(source, path);
}

/// Null where it was written; else why it was not, in words.
static QString writeTable(const QByteArray &csv, const QString &path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(csv) == csv.size() && file.commit())
        return {};
    // The toolkit asks for these itself, or has words of its own for them.
    const QFileInfo old(path);
    const bool isRefused = old.exists() && !old.isWritable();
    return words::systemWords(!old.dir().exists() ? QStringLiteral("No such file or directory")
                              : old.isDir()       ? QStringLiteral("Is a directory")
                              : isRefused         ? QStringLiteral("Permission denied")
                                                  : file.errorString());
}

void Saving::saveFindings(const std::shared_ptr<const Source> &source, const QString &path)
{
    const auto why = std::make_shared<QString>();
    const auto save = [source, path, why] {
        if (delivery::stateOf(path).isSameAs(delivery::stateOf(source->path))) {
            *why = words::sentence(
                {delivery::Reason::Kind::Hindered, delivery::Replacement::Hindrance::IsSource});
            return;
        }
        try {
            FindingsModel findings;
            findings.show(source, std::nullopt);
            *why = writeTable(findings.toCsv(), path);
        } catch (const std::bad_alloc &) {
            *why = Words::tr("memory ran out");
        }
    };
    desk.run(save, [this, path, why] {
        infoBar.tell(why->isNull()
                         ? Words::tr("The findings are in %1.").arg(QDir::toNativeSeparators(path))
                         : Words::tr("The findings could not be saved: %1").arg(*why));
    });
}

} // namespace window
