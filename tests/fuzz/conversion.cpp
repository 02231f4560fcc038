// SPDX-License-Identifier: MIT
//
// Whole conversions of arbitrary bytes, for libFuzzer. Beside what the sanitizers find, it ends the
// run where the tree is not the one of the toolkit, or where two runs give different rows.
#include "../unit/probe.h"
#include "reader/sourceparser.h"

#include <QBuffer>

namespace
{

class Conversion : public Probe
{
public:
    bool load(QByteArray &source)
    {
        QBuffer buffer(&source);
        buffer.open(QIODevice::ReadOnly);
        if (!parseSource(buffer, document))
            return false;
        QDomDocument expected;
        if (!expected.setContent(source) || nodeTexts(document) != nodeTexts(expected))
            qFatal("not the tree of the toolkit");
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
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    QByteArray source(reinterpret_cast<const char *>(data), static_cast<int>(size));
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
