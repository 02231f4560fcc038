// SPDX-License-Identifier: MIT
//
// Whole conversions of arbitrary bytes, for libFuzzer. Beside what the sanitizers find, it ends the
// run where the readers of a source differ, where two runs give different rows, where an observer
// is told of what is no element, or where a survey loses findings or their positions.
#include "../readers.h"
#include "../unit/probe.h"
#include "export/observer.h"
#include "reader/sourceparser.h"
#include "survey/survey.h"

#include <QBuffer>

#include <sys/mman.h>
#include <unistd.h>

namespace
{

class Conversion : public Probe, private exporter::Observer
{
public:
    Conversion() { setObserver(this); }

    bool load(QByteArray &source)
    {
        if (const char *fault = compareReaders(source).fault)
            qFatal("%s", fault);
        QBuffer buffer(&source);
        buffer.open(QIODevice::ReadOnly);
        if (!parseSource(buffer, document))
            return false;
        rootElement = document.documentElement();
        return readStructure();
    }

    /// The rows of all exporters, with this value for each of their switches.
    QStringList exportAll(bool flag)
    {
        QStringList rows;
        for (const int documentType : {0, 1}) {
            outputFileName = "/dev/null";
            outputEnabled = true;
            openOutput();
            exportKatalogs(flag, !flag, flag);
            exportPrices(flag, !flag, flag, !flag, flag, 1.5);
            exportYmlOffers(flag, !flag, flag, flag, flag, 1.5);
            exportDocs(!flag, documentType);
            collectDocumentRows(flag);
            rows += goodsRows;
            closeOutput();
        }
        return rows;
    }

private:
    static void check(const QDomElement &element)
    {
        if (element.tagName().isEmpty())
            qFatal("no element");
    }

    void exported(const exporter::Item &item) override { check(item.element); }
    void leftOut(exporter::ItemKind, const QDomElement &element, exporter::Loss) override
    {
        check(element);
    }
    void doubted(const QDomElement &element, exporter::Doubt) override { check(element); }
};

/// A check of the source, from a file in memory. What it finds must be where the source is.
void checkSource(const QByteArray &source)
{
    static const int file = memfd_create("source", 0);
    if (ftruncate(file, 0) != 0 || pwrite(file, source.data(), size_t(source.size()), 0) < 0)
        qFatal("no file in memory");
    survey::Request request;
    request.source = QString("/proc/self/fd/%1").arg(file);
    request.all = true;
    const survey::Survey survey = survey::check(request);
    int count = 0;
    for (const int found : survey.found)
        count += found;
    if (count != survey.findings.size())
        qFatal("findings are missing");
    const auto lines = source.count('\n') + source.count('\r') + 1;
    for (const survey::Finding &finding : survey.findings) {
        const bool isWide = source.contains('\0'); // its line ends are none of one byte
        if (!isWide && finding.position.line > lines)
            qFatal("a line behind the end");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    QByteArray source(reinterpret_cast<const char *>(data), static_cast<int>(size));
    checkSource(source);
    Conversion conversion;
    if (!conversion.load(source))
        return 0;
    for (const bool flag : {false, true}) {
        const QStringList rows = conversion.exportAll(flag);
        if (conversion.readStructure() && conversion.exportAll(flag) != rows)
            qFatal("other rows at the second run");
    }
    return 0;
}
