<?php
// SPDX-License-Identifier: MIT
//
// peer.php catalogue|yml blocks|lines SOURCE DESTINATION: what a user would script with SimpleXML and
// an array. PHP hands each fwrite to the system at once: one a block of goods, or one a line.

function write_blocks($out, array $values, $description)
{
    $text = "##goods\n";
    foreach ($values as $key => $value) {
        if ($value !== null) {
            $text .= "$key:$value\n";
        }
    }
    fwrite($out, $text . "--- begin ---\n$description\n--- end ---\n##endgoods\n");
}

function write_lines($out, array $values, $description)
{
    fwrite($out, "##goods\n");
    foreach ($values as $key => $value) {
        if ($value !== null) {
            fwrite($out, "$key:$value\n");
        }
    }
    fwrite($out, "--- begin ---\n");
    fwrite($out, "$description\n");
    fwrite($out, "--- end ---\n");
    fwrite($out, "##endgoods\n");
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

function catalogue($root, $out, $write)
{
    $paths = [];
    foreach ($root->{'Классификатор'}->{'Группы'} as $groups) {
        walk_groups($groups, '', $paths);
    }
    foreach ($root->{'Каталог'}->{'Товары'}->{'Товар'} as $goods) {
        $write($out, [
            'code' => $goods->{'Ид'},
            'article' => $goods->{'Артикул'},
            'name' => $goods->{'Наименование'},
            'barcode' => $goods->{'Штрихкод'},
            'group' => $paths[(string) $goods->{'Группы'}->{'Ид'}] ?? null,
            'unit' => $goods->{'БазоваяЕдиница'},
        ], $goods->{'Описание'});
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

function yml($root, $out, $write)
{
    $categories = $paths = [];
    foreach ($root->shop->categories->category as $category) {
        $categories[(string) $category['id']] = $category;
    }
    foreach ($root->shop->offers->offer as $offer) {
        $id = (string) $offer->categoryId;
        $write($out, [
            'code' => $offer['id'],
            'article' => $offer->vendorCode,
            'name' => shown_name((string) $offer->name),
            'barcode' => $offer->barcode,
            'group' => $id === '' ? null : category_path($id, $categories, $paths),
            'price' => $offer->price,
            'vendor' => $offer->vendor,
            'unit' => 'шт',
        ], $offer->description);
    }
}

ini_set('memory_limit', '-1');
[, $kind, $unit, $source, $destination] = $argv;
$out = fopen($destination, 'w');
fwrite($out, "Ryk data for exchange\n");
$kind(simplexml_load_file($source, 'SimpleXMLElement', LIBXML_PARSEHUGE), $out, "write_$unit");
