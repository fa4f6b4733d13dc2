-- SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
-- SPDX-License-Identifier: Apache-2.0

-- Uses the guide's heading as the title of its cover, its first paragraphs as an introduction, and
-- its first list as the table of contents: on GitHub, the contents are a plain list of links.

local function contents(list)
    return pandoc.Div({list}, pandoc.Attr("", {"contents"}))
end

function Pandoc(document)
    local blocks = pandoc.List()
    local found = false
    for _, block in ipairs(document.blocks) do
        if block.t == "Header" and block.level == 1 then
            document.meta.title = pandoc.MetaInlines(block.content)
        elseif block.t == "BulletList" and not found then
            found = true
            blocks:insert(contents(block))
        else
            blocks:insert(block)
        end
    end
    document.blocks = blocks
    return document
end

-- A picture in its own paragraph gets no caption.
function Para(paragraph)
    if #paragraph.content == 1 and paragraph.content[1].t == "Image" then
        return pandoc.Div({pandoc.Plain(paragraph.content)}, pandoc.Attr("", {"picture"}))
    end
end
