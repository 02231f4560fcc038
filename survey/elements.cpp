// SPDX-License-Identifier: MIT
#include "survey/elements.h"

#include "reader/tree.h"
#include "reader/vocabulary.h"

#include <algorithm>
#include <tuple>
#include <unordered_map>

namespace survey
{

namespace
{

/// What a name means, were it written as the export reads it.
enum class Meaning { None, Root, Section, Item };

struct KnownName {
    QString name;
    Meaning meaning;
};

const QString documentElement = QStringLiteral("Документ");

const KnownName knownNames[] = {
    {QStringLiteral("КоммерческаяИнформация"), Meaning::Root},
    {QStringLiteral("yml_catalog"), Meaning::Root},
    {QStringLiteral("xml_catalog"), Meaning::Root},
    {QStringLiteral("Классификатор"), Meaning::Section},
    {QStringLiteral("Каталог"), Meaning::Section},
    {QStringLiteral("ПакетПредложений"), Meaning::Section},
    {QStringLiteral("categories"), Meaning::Section},
    {QStringLiteral("offers"), Meaning::Section},
    {commerceml::goodsElement, Meaning::Item},
    {QStringLiteral("Предложение"), Meaning::Item},
    {documentElement, Meaning::Item},
    {QStringLiteral("offer"), Meaning::Item},
};

Meaning meaningOf(QStringView name)
{
    for (const KnownName &known : knownNames) {
        if (name.size() == known.name.size() && name.compare(known.name, Qt::CaseInsensitive) == 0)
            return known.meaning;
    }
    return Meaning::None;
}

/// The code of an item that no exporter came to, by the same elements.
QString codeOf(const QDomElement &item)
{
    const QString id = QStringLiteral("id");
    if (item.hasAttribute(id))
        return item.attribute(id);
    const QDomElement number = item.firstChildElement(commerceml::numberElement);
    return textOf(number.isNull() ? item.firstChildElement(commerceml::idElement) : number);
}

class Walk
{
public:
    Walk(const QList<QDomNode> &groupSections, SourceDialect dialect, const Collector &collector,
         bool wantsElements)
        : groupSections(groupSections),
          isYml(dialect == YmlDialect),
          collector(collector),
          wantsElements(wantsElements)
    {
        for (const Mark &mark : collector.marks)
            places.emplace(mark.element, 0);
    }

    Elements walk(const QDomDocument &document)
    {
        visit(document, {});
        for (const Mark &mark : collector.marks)
            found.marks.append({places.at(mark.element), mark});
        std::stable_sort(
            found.marks.begin(), found.marks.end(), [](const PlacedMark &a, const PlacedMark &b) {
                return std::tie(a.element, a.mark.kind) < std::tie(b.element, b.mark.kind);
            });
        return std::move(found);
    }

private:
    /// What stands around an element.
    struct Around {
        bool isRoot = true;
        bool isInGroups = false;
        bool isSectionOfGroups = false; ///< the parent is one
        bool isLost = false;            ///< the innermost document is left out
    };

    void visit(const QDomNode &parent, const Around &around)
    {
        for (QDomElement element = parent.firstChildElement(); !element.isNull();
             element = element.nextSiblingElement()) {
            const int place = next++;
            const void *const identity = identityOf(element);
            if (!places.empty()) {
                const auto wanted = places.find(identity);
                if (wanted != places.end())
                    wanted->second = place;
            }
            const QString name = element.tagName();
            look(element, identity, name, place, around);

            const bool isSection =
                nextSection < groupSections.size() && element == groupSections.at(nextSection);
            if (isSection)
                ++nextSection;
            const bool isDocument =
                name == documentElement && collector.reported.count(identity) > 0;
            visit(element,
                  {false, around.isInGroups || isSection, isSection,
                   isDocument ? collector.lostDocuments.count(identity) > 0 : around.isLost});
            if (wantsElements && collector.reported.count(identity) > 0)
                found.items.append({identity, place, next});
        }
    }

    void look(const QDomElement &element, const void *identity, const QString &name, int place,
              const Around &around)
    {
        const bool isGroup = isYml ? around.isSectionOfGroups && name == QLatin1String("category")
                                   : around.isInGroups && name == commerceml::groupElement;
        if (isGroup) {
            ++found.groups;
            if (wantsElements)
                found.groupElements.append(element);
        }

        const auto colon = name.lastIndexOf(u':');
        const Meaning meaning = meaningOf(QStringView(name).mid(colon + 1));
        if (meaning == Meaning::None || (meaning == Meaning::Root && !around.isRoot))
            return;
        if (colon >= 0)
            add(Kind::PrefixedName, element, identity, name, place);
        else if (meaning == Meaning::Item && !around.isLost &&
                 collector.reported.count(identity) == 0)
            add(Kind::NotReached, element, identity, name, place);
    }

    void add(Kind kind, const QDomElement &element, const void *identity, const QString &name,
             int place)
    {
        found.marks.append({place, {identity, kind, codeOf(element), {name}}});
    }

    const QList<QDomNode> &groupSections;
    const bool isYml;
    const Collector &collector;
    const bool wantsElements;
    std::unordered_map<const void *, int> places; // of the elements with marks
    int next = 0;
    int nextSection = 0;
    Elements found;
};

} // namespace

Elements walkElements(const QDomDocument &document, const QList<QDomNode> &groupSections,
                      SourceDialect dialect, const Collector &collector, bool wantsElements)
{
    return Walk(groupSections, dialect, collector, wantsElements).walk(document);
}

} // namespace survey
