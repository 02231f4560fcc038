-- Makes a document a page of the zip, which is read on Windows, away from the repository.
local document = PANDOC_STATE.input_files[1]
local folder = document:match("^(.*/)") or ""
local russian = document:match("%.ru%.md$") ~= nil

-- Chapters with one of these in their heading are for readers who have Debian, or the source.
local elsewhere = {"Debian", "by hand", "вручную"}

local source_note = russian
    and "Названные здесь файлы, которых нет рядом с программой, есть в её исходном тексте, `xml2ryk-*.tar.gz`."
    or "Files named here that did not come with the program are in its source, `xml2ryk-*.tar.gz`."

-- The path, from the root of the source, of a file there that a text names.
local function named_file(text)
    local name = text:match("^%w[%w._/-]*%w")
    for _, path in ipairs(name and {folder .. name, name} or {}) do
        local file = io.open(path)
        if file then
            file:close()
            return path
        end
    end
end

-- The name of its page, from the root of the zip; nil for what is no page there.
local function page_of(path)
    return path == "LICENSE" and "LICENSE.txt" or path:match("^(.*)%.md$") and path:gsub("md$", "html")
end

local function address(page)
    return folder == "" and page or pandoc.path.make_relative(page, folder, true)
end

local function for_windows(heading)
    local text = pandoc.utils.stringify(heading)
    for _, word in ipairs(elsewhere) do
        if text:find(word, 1, true) then
            return false
        end
    end
    return true
end

function Pandoc(page)
    local blocks, left_out = pandoc.Blocks({}), nil
    for _, block in ipairs(page.blocks) do
        if block.t == "Header" and block.level <= (left_out or block.level) then
            left_out = not for_windows(block) and block.level or nil
        end
        if not left_out then
            blocks:insert(block)
        end
    end

    local names_source = false
    blocks = blocks:walk({
        Link = function(link)
            local name, place = link.target:match("^([^#]*)(.*)$")
            local path = named_file((name:gsub("^%.%./", "")))
            local target = path and page_of(path)
            link.target = target and address(target) .. place or link.target
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
        blocks:extend(pandoc.read(source_note).blocks)
    end
    return pandoc.Pandoc(blocks, pandoc.Meta({
        lang = russian and "ru" or "en",
        pagetitle = pandoc.utils.stringify(blocks[1]),
    }))
end
