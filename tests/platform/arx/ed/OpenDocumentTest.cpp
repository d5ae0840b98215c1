#include "HostFixture.h"

#include <cstdio>
#include <string>

namespace
{

const char* const kOneLine = "0\nSECTION\n2\nENTITIES\n0\nLINE\n5\n1F\n8\nWalls\n10\n0\n20\n0\n11\n30\n21\n40\n"
                             "0\nENDSEC\n0\nEOF\n";

// A file in the folder for temporary files that goes with the object.
class DrawingFile
{
public:
    explicit DrawingFile(const std::string& contents)
    {
        wchar_t folder[MAX_PATH];
        wchar_t path[MAX_PATH];
        GetTempPathW(MAX_PATH, folder);
        GetTempFileNameW(folder, L"dxf", 0, path);
        m_path = path;
        FILE* file = _wfopen(path, L"wb");
        fwrite(contents.data(), 1, contents.size(), file);
        fclose(file);
    }
    ~DrawingFile() { DeleteFileW(m_path.c_str()); }
    DrawingFile(const DrawingFile&) = delete;
    DrawingFile& operator=(const DrawingFile&) = delete;

    const wchar_t* Path() const { return m_path.c_str(); }

private:
    std::wstring m_path;
};

class OpenDocument : public HostTest
{
};

TEST_F(OpenDocument, ShowsTheContentsOfTheFile)
{
    const DrawingFile file(kOneLine);
    arxhost::OpenResult result;
    AcApDocument* document = arxhost::OpenDocument(file.Path(), result);
    ASSERT_NE(document, nullptr) << result.line;
    EXPECT_EQ(result.status, Acad::eOk);
    EXPECT_TRUE(result.message.empty());
    EXPECT_EQ(result.drawing.ReadCount(), 1);
    EXPECT_TRUE(document->isNamedDrawing());
    EXPECT_STREQ(document->fileName(), file.Path());
    EXPECT_EQ(acDocManager->curDocument(), document);
    ASSERT_EQ(arxhost::VisibleEntities(document).size(), 1u);
    EXPECT_DOUBLE_EQ(document->database()->extmax().y, 40);
    ACHAR handle[AcDbHandle::kStrSiz];
    arxhost::VisibleEntities(document)[0].handle().getIntoAsciiBuffer(handle, AcDbHandle::kStrSiz);
    EXPECT_STREQ(handle, L"1F");
}

TEST_F(OpenDocument, ShowsAllOfTheDrawingAtFirst)
{
    const DrawingFile file(kOneLine);
    arxhost::OpenResult result;
    AcApDocument* document = arxhost::OpenDocument(file.Path(), result);
    ASSERT_NE(document, nullptr);
    const arxhost::ViewState view = arxhost::GetView(document);
    EXPECT_DOUBLE_EQ(view.centre.x, 15);
    EXPECT_DOUBLE_EQ(view.centre.y, 20);
    EXPECT_GT(view.height, 40);
    EXPECT_LT(view.height, 80);
}

TEST_F(OpenDocument, OpenFileIsActivatedAgain)
{
    const DrawingFile file(kOneLine);
    arxhost::OpenResult result;
    AcApDocument* document = arxhost::OpenDocument(file.Path(), result);
    ASSERT_NE(document, nullptr);
    arxhost::NewDocument();
    EXPECT_EQ(arxhost::OpenDocument(file.Path(), result), document);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), document);
    EXPECT_EQ(acDocManager->documentCount(), 2);
}

TEST_F(OpenDocument, BrokenFileLeavesNothing)
{
    const DrawingFile file("0\nSECTION\n2\nENTITIES\nLINE\n0\n");
    AcApDocument* before = arxhost::NewDocument();
    arxhost::OpenResult result;
    EXPECT_EQ(arxhost::OpenDocument(file.Path(), result), nullptr);
    EXPECT_EQ(result.status, Acad::eDwgObjectImproperlyRead);
    EXPECT_FALSE(result.message.empty());
    EXPECT_GT(result.line, 0);
    EXPECT_EQ(acDocManager->documentCount(), 1);
    EXPECT_EQ(acDocManager->curDocument(), before);
}

} // namespace
