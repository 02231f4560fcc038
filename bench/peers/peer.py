# SPDX-License-Identifier: MIT
"""peer.py catalogue|yml SOURCE DESTINATION: what a user would script with lxml and a dictionary."""

import sys

from lxml import etree


def lines_of(pairs, description):
    text = "##goods\n" + "".join("%s:%s\n" % (key, value) for key, value in pairs
                                 if value is not None)
    return text + "--- begin ---\n%s\n--- end ---\n##endgoods\n" % description


def catalogue(root, write):
    paths = {}

    def walk(groups, above):
        for group in groups.iterfind("Группа"):
            path = above + [group.findtext("Наименование")]
            paths[group.findtext("Ид")] = " \\ ".join(path)
            for nested in group.iterfind("Группы"):
                walk(nested, path)

    for groups in root.iterfind("Классификатор/Группы"):
        walk(groups, [])
    for goods in root.iterfind("Каталог/Товары/Товар"):
        write(lines_of((("code", goods.findtext("Ид")), ("article", goods.findtext("Артикул")),
                        ("name", goods.findtext("Наименование")),
                        ("barcode", goods.findtext("Штрихкод")),
                        ("group", paths.get(goods.findtext("Группы/Ид"))),
                        ("unit", goods.findtext("БазоваяЕдиница"))), goods.findtext("Описание")))


def shown_name(name):
    part, rest = name[1:].split("]", 1)
    return rest[1:] if part in rest else part + rest


def yml(root, write):
    categories = {c.get("id"): c for c in root.iterfind("shop/categories/category")}
    paths = {}

    def path(key):
        if key not in paths:
            category = categories[key]
            parent = category.get("parentId")
            paths[key] = (path(parent) + " \\ " if parent else "") + category.text
        return paths[key]

    for offer in root.iterfind("shop/offers/offer"):
        category = offer.findtext("categoryId")
        write(lines_of((("code", offer.get("id")), ("article", offer.findtext("vendorCode")),
                        ("name", shown_name(offer.findtext("name"))),
                        ("barcode", offer.findtext("barcode")),
                        ("group", path(category) if category else None),
                        ("price", offer.findtext("price")), ("vendor", offer.findtext("vendor")),
                        ("unit", "шт")), offer.findtext("description")))


def main():
    kind, source, destination = sys.argv[1:]
    sys.setrecursionlimit(100000)
    root = etree.parse(source, etree.XMLParser(huge_tree=True)).getroot()
    with open(destination, "w", encoding="utf-8", newline="\n") as out:
        out.write("Ryk data for exchange\n")
        {"catalogue": catalogue, "yml": yml}[kind](root, out.write)


main()
