// SPDX-License-Identifier: MIT
//
// The floor of every run: loads a document and ends.
#include <QDomDocument>
#include <QFile>

int main(int argc, char *argv[])
{
    QFile file(QFile::decodeName(argv[argc - 1]));
    QDomDocument document;
    return file.open(QIODevice::ReadOnly) && document.setContent(&file) ? 0 : 1;
}
