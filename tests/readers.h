// SPDX-License-Identifier: MIT
//
// The ways that lead from a source to its tree, held against each other.
#pragma once

#include "reader/guardedreader.h"
#include "reader/quickreader.h"

#include <QBuffer>
#include <QDomDocument>
#include <QRegularExpression>
#include <QStringList>
#include <QXmlInputSource>

/// Names and values of all nodes below `node`, but of those that stand for entities.
inline QStringList nodeTexts(const QDomNode &node)
{
    QStringList texts;
    const QDomNamedNodeMap attributes = node.attributes();
    for (int i = 0; i < attributes.size(); ++i)
        texts << attributes.item(i).nodeName() + '=' + attributes.item(i).nodeValue();
    texts.sort();
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (!child.isEntityReference() && !child.isDocumentType())
            texts << child.nodeName() << child.nodeValue() << nodeTexts(child) << "end";
    }
    return texts;
}

/// What one way makes of a source.
struct Reading {
    bool succeeds = false;
    QDomDocument document;
    Loading loading;
};

inline Reading readBy(bool (*read)(QIODevice &, QDomDocument &, Loading &), QByteArray xml)
{
    Reading reading;
    reading.loading.wantsPositions = true;
    QBuffer buffer(&xml);
    buffer.open(QIODevice::ReadOnly);
    reading.succeeds = read(buffer, reading.document, reading.loading);
    return reading;
}

inline QString toText(qint64 line, qint64 column)
{
    return QString("%1:%2").arg(line).arg(column);
}

/// Where the start tags end whose "<" are at `positions`, counted as the toolkit does; "-" where
/// there is none.
inline QStringList endsOfTags(QString xml, const QVector<SourcePosition> &positions)
{
    xml.replace("\r\n", "\n").replace('\r', '\n');
    QStringList ends;
    int index = 0;
    int line = 1;
    int column = 1;
    for (const SourcePosition &position : positions) {
        for (; index < xml.size() && (line != position.line || column != position.column ||
                                      xml.at(index).isLowSurrogate());
             ++index) {
            const bool isLineEnd = xml.at(index) == '\n';
            line += isLineEnd ? 1 : 0;
            column = isLineEnd ? 1 : column + (xml.at(index).isLowSurrogate() ? 0 : 1);
        }
        if (xml.mid(index, 1) != "<") {
            ends << "-";
            continue;
        }
        QChar quote;
        int end = index + 1;
        for (; !quote.isNull() || (xml.at(end) != '>' && xml.at(end) != '/'); ++end) {
            const QChar next = xml.at(end);
            if (next == quote)
                quote = QChar();
            else if (quote.isNull() && (next == '"' || next == '\''))
                quote = next;
        }
        const auto lineStart = xml.lastIndexOf('\n', end) + 1;
        ends << toText(line + xml.mid(index, end - index).count('\n'), end - lineStart + 1);
    }
    return ends;
}

inline QStringList toTexts(const QVector<SourcePosition> &positions)
{
    QStringList texts;
    for (const SourcePosition &position : positions)
        texts << toText(position.line, position.column);
    return texts;
}

/// Where start tags end, as the document of the toolkit itself knows it.
inline QStringList endsOfTags(const QDomNode &parent)
{
    QStringList ends;
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isElement())
            ends << toText(child.lineNumber(), child.columnNumber());
        ends << endsOfTags(child);
    }
    return ends;
}

/// What the ways make of a source, and, in `fault`, what they differ in.
struct Comparison {
    bool isQuick;
    bool isGuarded;
    const char *fault;
};

inline Comparison compareReaders(const QByteArray &xml)
{
    const Reading quick = readBy(readQuickly, xml);
    const Reading guarded = readBy(readGuarded, xml);
    const auto result = [&](const char *fault) {
        return Comparison{quick.succeeds, guarded.succeeds, fault};
    };
    const LoadFailure failure = guarded.loading.failure;
    if (guarded.succeeds != (failure == LoadFailure::None))
        return result("no failure, or one too many");

    QXmlInputSource decoded;
    decoded.setData(xml);
    const QStringList ends = toTexts(guarded.loading.positions);
    // The parser of the toolkit's version 5 cuts references to characters to 16 bits.
    static const QRegularExpression wide("&#(\\d{5,}|x[0-9A-Fa-f]{5,});");
    const bool isCut = decoded.data().contains(wide);

    if (quick.succeeds) {
        if (!guarded.succeeds)
            return result("only the quick reader takes it");
        if (!isCut && nodeTexts(quick.document) != nodeTexts(guarded.document))
            return result("the quick reader's tree");
        if (endsOfTags(decoded.data(), quick.loading.positions) != ends)
            return result("the quick reader's positions");
    }
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    if (!guarded.succeeds && failure != LoadFailure::NotWellFormed)
        return result(nullptr); // it might never end
    QDomDocument expected;
    QString message;
    int line = 0;
    int column = 0;
    if (expected.setContent(xml, &message, &line, &column) != guarded.succeeds)
        return result("what the toolkit takes");
    if (!guarded.succeeds) {
        const SourcePosition failedAt = guarded.loading.failedAt;
        if (message != guarded.loading.message || line != failedAt.line ||
            column != failedAt.column)
            return result("the failure that the toolkit tells");
    } else if (nodeTexts(expected) != nodeTexts(guarded.document)) {
        return result("the toolkit's tree");
    } else if (endsOfTags(expected) != ends) {
        return result("the toolkit's positions");
    }
#endif
    return result(nullptr);
}
