// CHighlighter: objects are highlighted for as long as it lives.
#include <ZnAcadUiBase.h>

#include "DrawingFixture.h"

#include <memory>

using ZnAcadUiBase::CHighlighter;

namespace
{
class Highlighter : public DrawingFixture
{
protected:
    void SetUp() override
    {
        DrawingFixture::SetUp();
        m_first = AddLine(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 0, 0));
        m_second = AddLine(AcGePoint3d(0, 5, 0), AcGePoint3d(1, 5, 0));
    }

    AcDbObjectId m_first;
    AcDbObjectId m_second;
};
} // namespace

TEST_F(Highlighter, HighlightsWhatIsAddedUntilItGoes)
{
    {
        CHighlighter highlighter;
        EXPECT_FALSE(arxhost::IsHighlighted(m_first));
        highlighter.Add(m_first);
        EXPECT_TRUE(arxhost::IsHighlighted(m_first));
        EXPECT_FALSE(arxhost::IsHighlighted(m_second));
        highlighter.Add(m_second);
        EXPECT_EQ(2u, arxhost::GetHighlighted(m_document).size());
    }
    EXPECT_TRUE(arxhost::GetHighlighted(m_document).empty());
}

TEST_F(Highlighter, AnObjectAddedTwiceIsHighlightedOnce)
{
    {
        CHighlighter highlighter;
        highlighter.Add(m_first);
        highlighter.Add(m_first);
        EXPECT_EQ(1u, arxhost::GetHighlighted(m_document).size());
    }
    EXPECT_FALSE(arxhost::IsHighlighted(m_first));
}

TEST_F(Highlighter, NullAndErasedIdentifiersAreLeftOut)
{
    arxhost::Erase({m_second});
    CHighlighter highlighter;
    highlighter.Add(AcDbObjectId());
    highlighter.Add(m_second);
    highlighter.Add(m_document->database()->layerTableId());
    EXPECT_TRUE(arxhost::GetHighlighted(m_document).empty());
}

TEST_F(Highlighter, SkipsObjectsErasedMeanwhile)
{
    {
        CHighlighter highlighter;
        highlighter.Add(m_first);
        highlighter.Add(m_second);
        arxhost::Erase({m_first});
    }
    EXPECT_TRUE(arxhost::GetHighlighted(m_document).empty());
}

TEST_F(Highlighter, SkipsDrawingsClosedMeanwhile)
{
    AcApDocument* other = arxhost::NewDocument();
    {
        CHighlighter highlighter;
        highlighter.Add(m_first);
        ASSERT_TRUE(arxhost::CloseDocument(m_document));
    }
    EXPECT_TRUE(arxhost::GetHighlighted(other).empty());
}

TEST_F(Highlighter, WorksInDocumentsThatAreNotCurrent)
{
    arxhost::NewDocument();
    CHighlighter highlighter;
    highlighter.Add(m_first);
    EXPECT_TRUE(arxhost::IsHighlighted(m_first));
}
