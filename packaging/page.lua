-- Makes a document a page of those that are packed: with links to the others, and for readers who have
-- neither the repository nor another platform.
local name, platform, version
local folder, russian
-- The documents that are pages, in order, from the root of the source.
local pages = {}

-- Chapters with one of these in their heading are for others.
local elsewhere = {
    Windows = {"Debian", "FILES"},
    Debian = {"Windows", "this repository", "этот репозиторий"},
}

local function is_russian(document)
    return document:match("%.ru%.md$") ~= nil
end

-- The path, from the root of the source, of a file there that a text names.
local function named_file(text)
    local path_in_text = text:match("^%w[%w._/-]*%w")
    for _, path in ipairs(path_in_text and {folder .. path_in_text, path_in_text} or {}) do
        local file = io.open(path)
        if file then
            file:close()
            return path
        end
    end
end

-- The name of its page, from the root of the pages; nil for what is no page there.
local function page_of(path)
    if path == "LICENSE" and platform == "Windows" then
        return "LICENSE.txt"
    end
    return pages[path] and path:gsub("md$", "html")
end

local function address(page)
    return folder == "" and page or pandoc.path.make_relative(page, folder, true)
end

local function is_for_platform(heading)
    local text = pandoc.utils.stringify(heading)
    for _, word in ipairs(elsewhere[platform]) do
        if text:find(word, 1, true) then
            return false
        end
    end
    return true
end

-- What links call a document.
local function title(document)
    local manual = document:match("([%w-]+)%.1%.md$")
    if manual then
        return manual .. "(1)"
    elseif document:match("^README") then -- its heading is the name of it all
        return is_russian(document) and "Обзор" or "Overview"
    end
    for line in io.lines(document) do
        return (line:gsub("^# ", ""))
    end
end

-- Links to the pages for readers of a language: where there is none in Russian, that in English, and a word of it.
local function links(in_russian)
    local items = {}
    for _, document in ipairs(pages) do
        if not is_russian(document) then
            local translation = document:gsub("md$", "ru.md")
            local chosen = in_russian and pages[translation] and translation or document
            local text = pandoc.Str(title(chosen))
            local item = pandoc.Inlines(
                chosen == name and pandoc.Strong(text) or pandoc.Link(text, address(page_of(chosen))))
            if in_russian and not is_russian(chosen) then
                item = pandoc.Inlines({pandoc.Span(item, {lang = "en"}), pandoc.Str(" (по-английски)")})
            end
            items[#items + 1] = {pandoc.Plain(item)}
        end
    end
    return pandoc.BulletList(items)
end

-- Whether it begins with a command of the repository, which no package has.
local function is_for_repository(block)
    local first = block.t == "Para" and block.content[1] or block
    return (first.t == "Code" or first.t == "CodeBlock") and first.text:find("^scripts/")
end

local function without_other_chapters(blocks)
    local kept, left_out = pandoc.Blocks({}), nil
    for _, block in ipairs(blocks) do
        if block.t == "Header" and block.level <= (left_out or block.level) then
            left_out = not is_for_platform(block) and block.level or nil
        end
        if not left_out and not is_for_repository(block) then
            kept:insert(block)
        end
    end
    return kept
end

local function with_links(blocks)
    local names_source = false
    blocks = blocks:walk({
        Link = function(link)
            local target_name, place = link.target:match("^([^#]*)(.*)$")
            local path = named_file((target_name:gsub("^%.%./", "")))
            local target = path and page_of(path)
            if not target then
                return
            end
            local text = pandoc.utils.stringify(link)
            if pandoc.path.filename(text) == pandoc.path.filename(path) then
                link.content = pandoc.Inlines((text:gsub("md$", "html")))
            end
            link.target = address(target) .. place
            return link
        end,
        Code = function(code)
            local path = named_file(code.text)
            local target = path and page_of(path)
            if target then
                return pandoc.Link(pandoc.Code(target), address(target))
            end
            names_source = names_source or path ~= nil and not path:find("^examples")
        end,
    })
    if names_source then
        blocks:extend(pandoc.read(russian
            and "Названные здесь файлы, которых нет рядом с программой, есть в её исходном тексте, `xml2ryk-*.tar.gz`."
            or "Files named here that did not come with the program are in its source, `xml2ryk-*.tar.gz`.").blocks)
    end
    return blocks
end

local function manual(blocks)
    blocks = blocks:walk({
        Header = function(header)
            header.level = header.level + 1
            return header
        end,
    })
    blocks:insert(1, pandoc.Header(1, title(name)))
    return blocks
end

-- The first page: what there is, in each language.
local function index(blocks)
    local filled = pandoc.Blocks({})
    for number, block in ipairs(blocks) do
        if block.level == 2 then
            local in_russian = number == #blocks
            filled:insert(pandoc.Div({block, links(in_russian)}, {lang = in_russian and "ru" or "en"}))
        else
            filled:insert(block)
        end
    end
    return filled
end

local function head()
    local home = pandoc.Link(pandoc.Str("xml2ryk " .. version), address("index.html"))
    local items = links(russian)
    items.content:insert(1, {pandoc.Plain(home)})
    return pandoc.Blocks({pandoc.RawBlock("html", "<nav>"), items, pandoc.RawBlock("html", "</nav>")})
end

function Pandoc(page)
    local meta = function(key) return pandoc.utils.stringify(page.meta[key]) end
    name, platform, version = meta("name"), meta("platform"), meta("version")
    folder = name:match("^(.*/)") or ""
    russian = is_russian(name)
    for document in meta("pages"):gmatch("%S+") do
        pages[document] = true
        pages[#pages + 1] = document
    end

    local blocks = page.blocks
    if name == "index.md" then
        blocks = index(blocks)
    else
        blocks = with_links(without_other_chapters(name:match("%.1%.md$") and manual(blocks) or blocks))
    end
    local page_title = pandoc.utils.stringify(blocks[1])
    if name ~= "index.md" then
        local navigation = head()
        navigation:extend(blocks)
        blocks = navigation
    end
    return pandoc.Pandoc(blocks, pandoc.Meta({lang = russian and "ru" or "en", pagetitle = page_title}))
end
