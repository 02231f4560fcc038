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
import random
import sys

WORDS = ("дрель лобзик саморез перфоратор шуруповёрт рулетка уровень молоток кисть валик насос "
         "кабель лампа розетка выключатель герметик клей краска грунт плитка").split()


class Source:
    def __init__(self, arguments):
        self.goods = arguments.goods
        self.groups = arguments.groups
        self.random = random.Random(arguments.seed)
        self.write = sys.stdout.write

    def uid(self):
        return "%08x-%04x-11ef-8a01-0050569b1c2d" % (self.random.getrandbits(32),
                                                     self.random.getrandbits(16))

    def words(self, count):
        return " ".join(self.random.choices(WORDS, k=count))

    def number(self, most):
        return "%d.%02d" % (self.random.randrange(1, most), self.random.randrange(100))

    def classifier(self, properties):
        """Groups five to a parent; their ids."""
        ids = [self.uid() for _ in range(self.groups)]
        self.write("<Классификатор>\n<Ид>%s</Ид><Наименование>Классификатор</Наименование>\n" %
                   self.uid())
        if properties:
            self.properties()
        self.write("<Группы>\n")
        # Group i holds the groups 5i + 1 to 5i + 5.
        stack = [("open", 0)] if ids else []
        while stack:
            step, i = stack.pop()
            if step == "close":
                self.write("</Группы></Группа>\n" if 5 * i + 1 < len(ids) else "</Группа>\n")
                continue
            self.write("<Группа><Ид>%s</Ид><Наименование>Группа %d</Наименование>" % (ids[i], i))
            stack.append(("close", i))
            if 5 * i + 1 < len(ids):
                self.write("<Группы>\n")
                stack += [("open", child) for child in
                          range(min(5 * i + 5, len(ids) - 1), 5 * i, -1)]
        self.write("</Группы>\n</Классификатор>\n")
        return ids

    def properties(self):
        self.write("<Свойства>\n")
        for i in range(self.groups):
            self.write("<Свойство><Ид>%s</Ид><Наименование>Свойство %d</Наименование>"
                       "<ВариантыЗначений>\n" % (self.uid(), i))
            for _ in range(20):
                self.write("<Справочник><Ид>%s</Ид><Значение>%s</Значение></Справочник>\n" %
                           (self.uid(), self.words(2)))
            self.write("</ВариантыЗначений></Свойство>\n")
        self.write("</Свойства>\n")

    def commerceml(self, content):
        self.write('<?xml version="1.0" encoding="UTF-8"?>\n'
                   '<КоммерческаяИнформация ВерсияСхемы="2.08">\n')
        content()
        self.write("</КоммерческаяИнформация>\n")

    def catalogue(self, properties=False):
        groups = self.classifier(properties)
        self.write("<Каталог>\n<Ид>%s</Ид><Наименование>Каталог</Наименование>\n<Товары>\n" %
                   self.uid())
        for i in range(self.goods):
            self.write(
                "<Товар>\n<Ид>%s</Ид>\n<Штрихкод>46%011d</Штрихкод>\n<Артикул>А-%d</Артикул>\n"
                "<Наименование>%s %d</Наименование>\n"
                '<БазоваяЕдиница Код="796" НаименованиеПолное="Штука">шт</БазоваяЕдиница>\n'
                % (self.uid(), i, i, self.words(3), i))
            if groups:
                self.write("<Группы><Ид>%s</Ид></Группы>\n" % self.random.choice(groups))
            self.write("<Описание>%s.\n%s.</Описание>\n" % (self.words(8), self.words(6)))
            self.write("<ЗначенияРеквизитов>\n")
            for name in ("ВидНоменклатуры", "ТипНоменклатуры"):
                self.write("<ЗначениеРеквизита><Наименование>%s</Наименование>"
                           "<Значение>Товар</Значение></ЗначениеРеквизита>\n" % name)
            self.write("</ЗначенияРеквизитов>\n</Товар>\n")
        self.write("</Товары>\n</Каталог>\n")

    def offers(self):
        self.write("<ПакетПредложений>\n<Ид>%s</Ид>\n<Предложения>\n" % self.uid())
        for i in range(self.goods):
            self.write("<Предложение>\n<Ид>%s</Ид>\n<Наименование>%s %d</Наименование>\n"
                       '<БазоваяЕдиница Код="796">шт</БазоваяЕдиница>\n<Цены>\n'
                       % (self.uid(), self.words(3), i))
            for _ in range(2):
                self.write("<Цена><ИдТипаЦены>%s</ИдТипаЦены><ЦенаЗаЕдиницу>%s</ЦенаЗаЕдиницу>"
                           "<Валюта>RUB</Валюта></Цена>\n" % (self.uid(), self.number(9999)))
            self.write("</Цены>\n<Количество>%d</Количество>\n</Предложение>\n" %
                       self.random.randrange(100))
        self.write("</Предложения>\n</ПакетПредложений>\n")

    def orders(self):
        for i in range(self.goods // 10):
            self.write("<Документ>\n<Ид>%d</Ид><Номер>%d</Номер><Дата>2026-03-01</Дата>\n"
                       "<Контрагенты><Контрагент><Ид>%s</Ид><Наименование>%s</Наименование>"
                       "<Роль>Покупатель</Роль></Контрагент></Контрагенты>\n<Товары>\n"
                       % (i, i, self.uid(), self.words(2)))
            for _ in range(3):
                self.write("<Товар><Ид>%s</Ид><Наименование>%s</Наименование>"
                           "<БазоваяЕдиница>шт</БазоваяЕдиница><ЦенаЗаЕдиницу>%s</ЦенаЗаЕдиницу>"
                           "<Количество>%d</Количество></Товар>\n"
                           % (self.uid(), self.words(3), self.number(9999),
                              self.random.randrange(1, 9)))
            self.write("</Товары>\n<ЗначенияРеквизитов><ЗначениеРеквизита>"
                       "<Наименование>Статус заказа</Наименование><Значение>Принят</Значение>"
                       "</ЗначениеРеквизита></ЗначенияРеквизитов>\n</Документ>\n")

    def yml(self):
        self.write('<?xml version="1.0" encoding="UTF-8"?>\n'
                   '<!DOCTYPE yml_catalog SYSTEM "shops.dtd">\n'
                   '<yml_catalog date="2026-03-01 10:00">\n<shop>\n<name>Магазин</name>\n'
                   "<categories>\n")
        for i in range(self.groups):
            parent = ' parentId="%d"' % ((i - 1) // 5 + 1) if i else ""
            self.write('<category id="%d"%s>Категория %d</category>\n' % (i + 1, parent, i + 1))
        self.write("</categories>\n<offers>\n")
        for i in range(self.goods):
            self.write('<offer id="%d" available="true">\n<url>https://shop.example/%d</url>\n'
                       "<price>%s</price>\n<currencyId>RUR</currencyId>\n" %
                       (i, i, self.number(9999)))
            if self.groups:
                self.write("<categoryId>%d</categoryId>\n" %
                           self.random.randrange(1, self.groups + 1))
            self.write("<picture>https://shop.example/img/%d.jpg</picture>\n"
                       "<vendor>%s</vendor>\n<vendorCode>А-%d</vendorCode>\n<name>[%s] %s</name>\n"
                       "<description>%s.\n%s.</description>\n<barcode>46%011d</barcode>\n"
                       % (i, self.words(1), i, self.words(1), self.words(3), self.words(8),
                          self.words(6), i))
            for _ in range(4):
                self.write('<param name="%s">%s</param>\n' % (self.words(1), self.words(1)))
            self.write("</offer>\n")
        self.write("</offers>\n</shop>\n</yml_catalog>\n")


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
        source.commerceml(lambda: source.catalogue(properties=True))
    else:
        source.commerceml(getattr(source, arguments.kind))


if __name__ == "__main__":
    main()
