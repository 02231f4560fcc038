// SPDX-License-Identifier: MIT
#include "job/console.h"
#include "job/idledispatcher.h"
#include "job/platform.h"
#include "reader/commxmlreader.h"
#include "reader/tree.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QTextCodec>

#include <new>

namespace
{

enum ExitCode {
    Copied = 0,
    BadUsage = 1,
    SourceNotRead = 2,
    DocumentsNotExported = 3,
};

class JobReader : public CommXmlReader
{
public:
    void keepDocument() const { keepTree(document); }
};

struct JobOptions {
    QString sourcePath;
    QString destinationPath;
    int saleFlag = 1; // 1: the documents are sales, 0: purchases
    bool pauseAfterJob = false;
};

/// The log is a part of what the program prints: settings that are meant for other programs of the
/// toolkit do not change it, and the toolkit's own warnings stay out of it.
void fixLog()
{
    for (const char *variable :
         {"QT_LOGGING_CONF", "QT_LOGGING_DEBUG", "QT_LOGGING_RULES", "QT_MESSAGE_PATTERN"})
        qunsetenv(variable);
    qputenv("QT_FORCE_STDERR_LOGGING", "1");
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=true\ndefault.warning=false"));
}

void printUsage()
{
    consoleOut() << QObject::tr("command line format:") << Qt::endl
                 << QObject::tr("xml2ryk.exe source_file.xml destination_file.txt options")
                 << Qt::endl
                 << QObject::tr("options:") << Qt::endl
                 << QObject::tr("--purchase - documents for purchase (sale by default)") << Qt::endl
                 << QObject::tr("--pause - pause after job") << Qt::endl;
}

/// `arguments` holds two at the least.
JobOptions readOptions(const QList<QByteArray> &arguments)
{
    const QTextCodec *pathCodec = QTextCodec::codecForName("cp1251");
    JobOptions options;
    options.sourcePath = pathCodec->toUnicode(arguments.at(0));
    options.destinationPath = pathCodec->toUnicode(arguments.at(1));
    for (const QByteArray &argument : arguments.mid(2)) {
        if (argument == "--purchase")
            options.saleFlag = 0;
        else if (argument == "--pause")
            options.pauseAfterJob = true;
    }
    return options;
}

/// Writes the exchange file. False if not all documents are in it, or there are none.
bool writeExchangeFile(const QString &path, JobReader &reader, int documentType)
{
    try {
        reader.keepDocument();
        reader.readStructure();
        reader.outputFileName = path;
        reader.outputEnabled = true;
        reader.openOutput();

        reader.exportKatalogs(/*prefixRows=*/false, /*withDescription=*/true, /*markHtml=*/true);
        reader.exportPrices(/*prefixRows=*/false, /*withDescription=*/true, /*markHtml=*/true,
                            /*extendedOffers=*/true, /*applyFactor=*/false, /*priceFactor=*/1.0);
        return reader.exportDocs(/*withGoods=*/true, documentType);
    } catch (const std::bad_alloc &) {
        reader.closeOutput(); // which makes room for the message; the lines so far stay
        return false;
    }
}

ExitCode convert(const JobOptions &options)
{
    const auto pauseAtEnd = [&] {
        if (options.pauseAfterJob)
            pauseForKey();
    };

    JobReader reader;
    if (!reader.loadSource(options.sourcePath)) {
        printMessage(QObject::tr("Error open input file %1!").arg(options.sourcePath), false);
        pauseAtEnd();
        return SourceNotRead;
    }
    if (!writeExchangeFile(options.destinationPath, reader, options.saleFlag)) {
        printMessage(QObject::tr("Error getting documents..."), false);
        pauseAtEnd();
        reader.closeOutput();
        return DocumentsNotExported;
    }
    reader.closeOutput();
    printMessage(QObject::tr("Data was copied to file %1.").arg(options.destinationPath), false);
    pauseAtEnd();
    return Copied;
}

} // namespace

int main(int argc, char *argv[])
{
    preparePlatform();
    fixLog();
    QCoreApplication::setEventDispatcher(new IdleDispatcher); // which the application owns
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
    const QCoreApplication application(argc, argv);
    setConsoleCodec("cp866");

    const QList<QByteArray> arguments = jobArguments(argc, argv);
    if (arguments.size() < 2) {
        printUsage();
        pauseForKey();
        return BadUsage;
    }
    const JobOptions options = readOptions(arguments);
    consoleOut() << QObject::tr("Source file: ") << options.sourcePath << Qt::endl
                 << QObject::tr("Destination file: ") << options.destinationPath << Qt::endl;
    return convert(options);
}
