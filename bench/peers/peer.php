<?php
// SPDX-License-Identifier: MIT
//
// peer.php catalogue|yml SOURCE DESTINATION: what a user would script with SimpleXML and an array.

function goods_lines(array $values, $description)
{
    $text = "##goods\n";
    foreach ($values as $key => $value) {
        if ($value !== null) {
            $text .= "$key:$value\n";
        }
    }
    return $text . "--- begin ---\n$description\n--- end ---\n##endgoods\n";
}

function walk_groups($groups, $above, array &$paths)
{
    foreach ($groups->{'Группа'} as $group) {
        $path = ($above === '' ? '' : "$above \\ ") . $group->{'Наименование'};
        $paths[(string) $group->{'Ид'}] = $path;
        foreach ($group->{'Группы'} as $nested) {
            walk_groups($nested, $path, $paths);
        }
    }
}

function catalogue($root, $out)
{
    $paths = [];
    foreach ($root->{'Классификатор'}->{'Группы'} as $groups) {
        walk_groups($groups, '', $paths);
    }
    foreach ($root->{'Каталог'}->{'Товары'}->{'Товар'} as $goods) {
        fwrite($out, goods_lines([
            'code' => $goods->{'Ид'},
            'article' => $goods->{'Артикул'},
            'name' => $goods->{'Наименование'},
            'barcode' => $goods->{'Штрихкод'},
            'group' => $paths[(string) $goods->{'Группы'}->{'Ид'}] ?? null,
            'unit' => $goods->{'БазоваяЕдиница'},
        ], $goods->{'Описание'}));
    }
}

function shown_name($name)
{
    [$part, $rest] = explode(']', substr($name, 1), 2);
    return strpos($rest, $part) !== false ? substr($rest, 1) : $part . $rest;
}

function category_path($id, array $categories, array &$paths)
{
    if (!isset($paths[$id])) {
        $parent = (string) $categories[$id]['parentId'];
        $paths[$id] = ($parent === '' ? '' : category_path($parent, $categories, $paths) . ' \\ ')
            . $categories[$id];
    }
    return $paths[$id];
}

function yml($root, $out)
{
    $categories = $paths = [];
    foreach ($root->shop->categories->category as $category) {
        $categories[(string) $category['id']] = $category;
    }
    foreach ($root->shop->offers->offer as $offer) {
        $id = (string) $offer->categoryId;
        fwrite($out, goods_lines([
            'code' => $offer['id'],
            'article' => $offer->vendorCode,
            'name' => shown_name((string) $offer->name),
            'barcode' => $offer->barcode,
            'group' => $id === '' ? null : category_path($id, $categories, $paths),
            'price' => $offer->price,
            'vendor' => $offer->vendor,
            'unit' => 'шт',
        ], $offer->description));
    }
}

ini_set('memory_limit', '-1');
[, $kind, $source, $destination] = $argv;
$out = fopen($destination, 'w');
fwrite($out, "Ryk data for exchange\n");
$kind(simplexml_load_file($source, 'SimpleXMLElement', LIBXML_PARSEHUGE), $out);
