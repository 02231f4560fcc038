#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes a source of trade data to standard output, the same one for the same arguments.

catalogue   a classifier with nested groups, and a catalogue of goods
properties  the same, the classifier heavy with properties whose values bear ids
offers      a price package of two prices an offer
orders      an order for each ten goods, with three lines
yml         a shop feed with nested categories
"""

import argparse
import contextlib
import random
import sys

WORDS = ("дрель лобзик саморез перфоратор шуруповёрт рулетка уровень молоток кисть валик насос "
         "кабель лампа розетка выключатель герметик клей краска грунт плитка").split()


class Source:
    """Writes element by element, indented as exports are."""

    def __init__(self, arguments):
        self.goods = arguments.goods
        self.groups = arguments.groups
        self.random = random.Random(arguments.seed)
        self.out = sys.stdout.write
        self.depth = 0

    def uid(self):
        return "%08x-%04x-11ef-8a01-0050569b1c2d" % (self.random.getrandbits(32),
                                                     self.random.getrandbits(16))

    def words(self, count):
        return " ".join(self.random.choices(WORDS, k=count))

    def number(self, most):
        return "%d.%02d" % (self.random.randrange(1, most), self.random.randrange(100))

    def line(self, text):
        self.out("\t" * self.depth + text + "\n")

    def leaf(self, name, text, attributes=""):
        self.line("<%s%s>%s</%s>" % (name, attributes, text, name))

    @contextlib.contextmanager
    def element(self, name, attributes=""):
        self.line("<%s%s>" % (name, attributes))
        self.depth += 1
        yield
        self.depth -= 1
        self.line("</%s>" % name)

    def named(self, name):
        self.leaf("Ид", self.uid())
        self.leaf("Наименование", name)

    def classifier(self, properties):
        """Groups five to a parent; their ids."""
        ids = [self.uid() for _ in range(self.groups)]
        with self.element("Классификатор"):
            self.named("Классификатор (Каталог товаров)")
            with self.element("Группы"):
                if ids:
                    self.group(ids, 0)
            if properties:
                self.properties()
        return ids

    def group(self, ids, i):
        """Group i holds the groups 5i + 1 to 5i + 5."""
        with self.element("Группа"):
            self.leaf("Ид", ids[i])
            self.leaf("Наименование", "Группа %d" % i)
            nested = range(5 * i + 1, min(5 * i + 6, len(ids)))
            if nested:
                with self.element("Группы"):
                    for child in nested:
                        self.group(ids, child)

    def properties(self):
        with self.element("Свойства"):
            for i in range(self.groups):
                with self.element("Свойство"):
                    self.named("Свойство %d" % i)
                    with self.element("ВариантыЗначений"):
                        for _ in range(20):
                            with self.element("Значение"):
                                self.leaf("Ид", self.uid())
                                self.leaf("Наименование", self.words(2))

    def requisites(self, pairs):
        with self.element("ЗначенияРеквизитов"):
            for name, value in pairs:
                with self.element("ЗначениеРеквизита"):
                    self.leaf("Наименование", name)
                    self.leaf("Значение", value)

    def commerceml(self, content, *arguments):
        self.line('<?xml version="1.0" encoding="UTF-8"?>')
        with self.element("КоммерческаяИнформация", ' ВерсияСхемы="2.08"'):
            content(*arguments)

    def catalogue(self, properties=False):
        groups = self.classifier(properties)
        with self.element("Каталог"):
            self.named("Основной каталог товаров")
            with self.element("Товары"):
                for i in range(self.goods):
                    self.good(groups, i)

    def good(self, groups, i):
        with self.element("Товар"):
            self.leaf("Ид", self.uid())
            self.leaf("Штрихкод", "46%011d" % i)
            self.leaf("Артикул", "А-%d" % i)
            self.leaf("Наименование", "%s %d" % (self.words(2), i))
            self.leaf("БазоваяЕдиница", "шт", ' Код="796" НаименованиеПолное="Штука"')
            if groups:
                with self.element("Группы"):
                    self.leaf("Ид", self.random.choice(groups))
            self.leaf("Описание", self.words(5))
            self.requisites((("ВидНоменклатуры", "Товар"), ("Вес", self.number(9))))

    def offers(self):
        with self.element("ПакетПредложений"):
            self.named("Пакет предложений")
            with self.element("Предложения"):
                for i in range(self.goods):
                    with self.element("Предложение"):
                        self.named("%s %d" % (self.words(2), i))
                        self.leaf("БазоваяЕдиница", "шт", ' Код="796"')
                        with self.element("Цены"):
                            for _ in range(2):
                                with self.element("Цена"):
                                    self.leaf("ИдТипаЦены", self.uid())
                                    self.leaf("ЦенаЗаЕдиницу", self.number(9999))
                                    self.leaf("Валюта", "RUB")
                        self.leaf("Количество", self.random.randrange(100))

    def orders(self):
        for i in range(self.goods // 10):
            with self.element("Документ"):
                self.leaf("Ид", i)
                self.leaf("Номер", i)
                self.leaf("Дата", "2026-03-01")
                with self.element("Контрагенты"), self.element("Контрагент"):
                    self.named(self.words(2))
                    self.leaf("Роль", "Покупатель")
                with self.element("Товары"):
                    for _ in range(3):
                        with self.element("Товар"):
                            self.named(self.words(2))
                            self.leaf("БазоваяЕдиница", "шт")
                            self.leaf("ЦенаЗаЕдиницу", self.number(9999))
                            self.leaf("Количество", self.random.randrange(1, 9))
                self.requisites((("Статус заказа", "Принят"),))

    def yml(self):
        self.line('<?xml version="1.0" encoding="UTF-8"?>')
        self.line('<!DOCTYPE yml_catalog SYSTEM "shops.dtd">')
        with self.element("yml_catalog", ' date="2026-03-01 10:00"'), self.element("shop"):
            self.leaf("name", "Магазин")
            with self.element("categories"):
                for i in range(1, self.groups + 1):
                    parent = ' parentId="%d"' % ((i - 2) // 5 + 1) if i > 1 else ""
                    self.leaf("category", "Категория %d" % i, ' id="%d"%s' % (i, parent))
            with self.element("offers"):
                for i in range(self.goods):
                    self.offer(i)

    def offer(self, i):
        with self.element("offer", ' id="%d" available="true"' % i):
            self.leaf("url", "https://shop.example/product/%d" % i)
            self.leaf("price", self.number(9999))
            self.leaf("currencyId", "RUR")
            if self.groups:
                self.leaf("categoryId", self.random.randrange(1, self.groups + 1))
            self.leaf("picture", "https://shop.example/img/%d.jpg" % i)
            self.leaf("vendor", self.words(1))
            self.leaf("vendorCode", "А-%d" % i)
            self.leaf("name", "[%s] %s" % (self.words(1), self.words(3)))
            self.leaf("description", self.words(5))
            self.leaf("barcode", "46%011d" % i)
            for _ in range(4):
                self.leaf("param", self.words(1), ' name="%s"' % self.words(1))


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("kind", choices=("catalogue", "properties", "offers", "orders", "yml"))
    parser.add_argument("--goods", type=int, default=50000)
    parser.add_argument("--groups", type=int, default=2000)
    parser.add_argument("--seed", type=int, default=1)
    arguments = parser.parse_args()
    sys.stdout.reconfigure(encoding="utf-8", newline="\n")
    source = Source(arguments)
    if arguments.kind == "yml":
        source.yml()
    elif arguments.kind == "properties":
        source.commerceml(source.catalogue, True)
    else:
        source.commerceml(getattr(source, arguments.kind))


if __name__ == "__main__":
    main()
