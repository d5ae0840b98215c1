#include "BlockCheck.h"

#include "DxfError.h"

#include <algorithm>

namespace arxdxf
{

namespace
{

class BlockChecker
{
public:
    explicit BlockChecker(const DxfDrawing& drawing)
        : m_drawing(drawing), m_blockOfName(drawing.blockNames.size(), DxfNames::npos), m_states(drawing.blocks.size())
    {
        for (size_t i = 0; i < drawing.blocks.size(); ++i)
        {
            const size_t name = drawing.blockNames.Find(drawing.blocks[i].name);
            if (name != DxfNames::npos)
            {
                m_blockOfName[name] = i;
            }
        }
    }

    void Check()
    {
        for (size_t i = 0; i < m_drawing.blocks.size(); ++i)
        {
            CountOf(i, 1);
        }
        Count(m_drawing.modelSpace, 0);
        Count(m_drawing.paperSpace, 0);
    }

private:
    struct State
    {
        bool isOpen = false; // on the way from the outermost block to the current one
        bool isDone = false;
        double count = 0;
        int depth = 0; // levels of blocks below and including this one
    };

    // Entities of a list when every reference in it is replaced by its block; `depth` levels are around it.
    double Count(const std::vector<DxfEntity>& list, int depth, int* levels = nullptr)
    {
        double count = 0;
        for (const DxfEntity& entity : list)
        {
            const size_t block = entity.isReference ? m_blockOfName[entity.block] : DxfNames::npos;
            if (block == DxfNames::npos)
            {
                count += 1;
                continue;
            }
            if (m_states[block].isOpen)
            {
                throw DxfError{entity.line, L"图块循环引用：" + CycleFrom(block)};
            }
            count += CountOf(block, depth + 1) * entity.copies;
            const int below = m_states[block].depth;
            if (depth + below > kMaxBlockDepth)
            {
                throw DxfError{entity.line, L"图块嵌套超过 " + std::to_wstring(kMaxBlockDepth) + L" 层"};
            }
            if (levels != nullptr)
            {
                *levels = std::max(*levels, below);
            }
            if (count > kMaxExpandedEntities)
            {
                throw DxfError{entity.line, L"图块展开后的图元超过 " +
                                                std::to_wstring(static_cast<int>(kMaxExpandedEntities)) + L" 个"};
            }
        }
        return count;
    }

    double CountOf(size_t block, int depth)
    {
        if (m_states[block].isDone)
        {
            return m_states[block].count;
        }
        if (depth > kMaxBlockDepth)
        {
            throw DxfError{m_drawing.blocks[block].line, L"图块嵌套超过 " + std::to_wstring(kMaxBlockDepth) + L" 层"};
        }
        m_way.push_back(block);
        m_states[block].isOpen = true;
        int levels = 0;
        m_states[block].count = Count(m_drawing.blocks[block].entities, depth, &levels);
        m_states[block].depth = levels + 1;
        m_states[block].isOpen = false;
        m_states[block].isDone = true;
        m_way.pop_back();
        return m_states[block].count;
    }

    // "A → B → A"
    std::wstring CycleFrom(size_t block) const
    {
        std::wstring names;
        for (auto step = std::find(m_way.begin(), m_way.end(), block); step != m_way.end(); ++step)
        {
            names += m_drawing.blocks[*step].name + L" → ";
        }
        return names + m_drawing.blocks[block].name;
    }

    const DxfDrawing& m_drawing;
    std::vector<size_t> m_blockOfName;
    std::vector<State> m_states;
    std::vector<size_t> m_way;
};

} // namespace

void CheckBlocks(const DxfDrawing& drawing)
{
    BlockChecker(drawing).Check();
}

} // namespace arxdxf
