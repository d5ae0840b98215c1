#include "xtp/list/XTSortClass.h"

#include "afx/core/String.h"
#include "afx/ctrl/ListCtrl.h"
#include "xtp/list/SortKeys.h"

#include <unordered_map>
#include <vector>

namespace
{
// The control tells rows apart by their item data alone while it sorts, so each row needs one of its own then. Rows
// that share theirs with an earlier row get a spare one for the time; all others are left alone, since every change
// would be notified to the list's parent.
class UniqueRowData
{
public:
    explicit UniqueRowData(CListCtrl& list) : m_list(list)
    {
        const int rows = list.GetItemCount();
        std::vector<int> shared;
        m_rowOfData.reserve(rows);
        for (int row = 0; row < rows; ++row)
        {
            if (!m_rowOfData.emplace(list.GetItemData(row), row).second)
                shared.push_back(row);
        }
        LendSpares(shared);
    }

    ~UniqueRowData() { GiveBack(); }

    size_t RowOf(DWORD_PTR data) const { return static_cast<size_t>(m_rowOfData.find(data)->second); }

private:
    void LendSpares(const std::vector<int>& rows)
    {
        DWORD_PTR spare = 0;
        for (int row : rows)
        {
            while (m_rowOfData.count(spare) != 0)
                ++spare;
            m_lent.emplace(spare, m_list.GetItemData(row));
            m_rowOfData.emplace(spare, row);
            m_list.SetItemData(row, spare);
        }
    }

    void GiveBack()
    {
        if (m_lent.empty())
            return;
        const int rows = m_list.GetItemCount();
        for (int row = 0; row < rows; ++row)
        {
            const auto lent = m_lent.find(m_list.GetItemData(row));
            if (lent != m_lent.end())
                m_list.SetItemData(row, lent->second);
        }
    }

    CListCtrl& m_list;
    std::unordered_map<DWORD_PTR, int> m_rowOfData;
    std::unordered_map<DWORD_PTR, DWORD_PTR> m_lent;
};

struct Ranks
{
    const UniqueRowData* rows;
    std::vector<size_t> rankOfRow;
};

int CALLBACK CompareRanks(LPARAM left, LPARAM right, LPARAM data)
{
    const Ranks& ranks = *reinterpret_cast<const Ranks*>(data);
    const size_t leftRank = ranks.rankOfRow[ranks.rows->RowOf(static_cast<DWORD_PTR>(left))];
    const size_t rightRank = ranks.rankOfRow[ranks.rows->RowOf(static_cast<DWORD_PTR>(right))];
    return leftRank < rightRank ? -1 : (leftRank > rightRank ? 1 : 0);
}

std::vector<size_t> RankRows(const CListCtrl& list, int column, bool ascending, XTSortType type)
{
    const int rows = list.GetItemCount();
    std::vector<xtp::SortKey> keys;
    keys.reserve(rows);
    for (int row = 0; row < rows; ++row)
        keys.push_back(xtp::MakeSortKey(list.GetItemText(row, column), type));

    const std::vector<size_t> order = xtp::SortOrder(keys, ascending, type);
    std::vector<size_t> rankOfRow(order.size());
    for (size_t rank = 0; rank < order.size(); ++rank)
        rankOfRow[order[rank]] = rank;
    return rankOfRow;
}
} // namespace

CXTSortClass::CXTSortClass(CListCtrl* list, int column) : m_list(list), m_column(column) {}

CXTSortClass::~CXTSortClass() = default;

void CXTSortClass::Sort(bool ascending, XTSortType type)
{
    if (m_list == nullptr || m_list->GetSafeHwnd() == nullptr || m_column < 0 ||
        (m_list->GetStyle() & LVS_OWNERDATA) != 0)
        return;
    Ranks ranks = {nullptr, RankRows(*m_list, m_column, ascending, type)};
    const UniqueRowData rows(*m_list);
    ranks.rows = &rows;
    m_list->SortItems(&CompareRanks, reinterpret_cast<DWORD_PTR>(&ranks));
}
