// SPDX-License-Identifier: MIT
//
// What the exporters report, gathered by element until their positions are looked for.
#pragma once

#include "export/observer.h"
#include "survey/survey.h"

#include <QDomElement>
#include <QVector>

#include <unordered_set>
#include <vector>

namespace survey
{

/// What is found at an element.
struct Mark {
    const void *element;
    Kind kind;
    QString code;
    QStringList details;
};

/// Hears of the exports of one source.
class Collector : public exporter::Observer
{
public:
    QVector<Mark> marks;
    Counts counts;                                  // of items
    std::unordered_set<const void *> reported;      ///< all items
    std::unordered_set<const void *> lostDocuments; ///< those whose lines no exporter came to

    /// Called when everything is exported.
    void finish();

    void exported(const exporter::Item &item) override;
    void leftOut(exporter::ItemKind kind, const QDomElement &element, exporter::Loss loss) override;
    void doubted(const QDomElement &element, exporter::Doubt doubt) override;

private:
    struct Coded {
        size_t hash; // to sort by: most codes begin alike
        QString code;
        int place; // in the list
        const void *element;
    };

    void count(exporter::ItemKind kind);
    void takeDoubts(const QString &code);
    void addCode(const exporter::Item &item);
    void markDuplicates();

    QVector<Mark> doubts; // about the next item
    const void *list = nullptr;
    std::vector<Coded> codes; // of the items in the list
    int noLines = -1;         // the mark of a document that ended the export
    int lostBehind = 0;
};

} // namespace survey
