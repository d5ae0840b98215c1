#include "Entities.h"

#include "arx/dxf/DxfReader.h"
#include "arx/gi/DisplayList.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>

namespace
{

// Drawings of the Debian package librecad-data (symbols, sheets, hatch patterns), as Wine sees them.
const wchar_t kFolder[] = L"Z:\\usr\\share\\librecad";
constexpr size_t kEvery = 12;
constexpr size_t kLeastSample = 100;

std::vector<std::filesystem::path> SampleDrawings()
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kFolder))
    {
        if (entry.path().extension() == ".dxf")
        {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    if (std::getenv("ZNKT_ALL_DRAWINGS") != NULL)
    {
        return files;
    }
    std::vector<std::filesystem::path> sample;
    for (size_t i = 0; i < files.size(); i += kEvery)
    {
        sample.push_back(files[i]);
    }
    return sample;
}

// The picture must lie where the extents of the entities say, but for what chords cut off.
void ExpectPictureInExtents(AcDbDatabase& database, const std::string& name)
{
    constexpr double kUnitsPerPixel = 1e-3;
    constexpr double kSlack = 1e-2;
    arxgi::DisplayList list;
    list.Build(database, kUnitsPerPixel);
    const AcDbExtents box = database.modelExtents();
    if (list.box().IsEmpty())
    {
        return;
    }
    EXPECT_NEAR(list.box().minX, box.minPoint().x, kSlack) << name;
    EXPECT_NEAR(list.box().minY, box.minPoint().y, kSlack) << name;
    EXPECT_NEAR(list.box().maxX, box.maxPoint().x, kSlack) << name;
    EXPECT_NEAR(list.box().maxY, box.maxPoint().y, kSlack) << name;
    EXPECT_FALSE(list.isTruncated()) << name;
}

} // namespace

// Set the environment variable ZNKT_ALL_DRAWINGS to walk all of them instead of every twelfth.
TEST(SampleDrawings, LibraryOfRealDrawingsIsReadWithoutErrors)
{
    ASSERT_TRUE(std::filesystem::is_directory(kFolder))
        << "The sample drawings are missing: install the Debian package librecad-data.";
    const std::vector<std::filesystem::path> files = SampleDrawings();
    ASSERT_GE(files.size(), kLeastSample);
    int entities = 0;
    int skipped = 0;
    for (const std::filesystem::path& file : files)
    {
        AcDbDatabase database(true);
        arxdxf::DxfResult result;
        EXPECT_TRUE(arxdxf::ReadDxf(file.c_str(), database, result)) << file << " line " << result.errorLine;
        EXPECT_TRUE(result.missing.empty()) << file;
        ExpectPictureInExtents(database, file.string());
        entities += result.ReadCount();
        skipped += result.SkippedCount();
    }
    RecordProperty("files", static_cast<int>(files.size()));
    RecordProperty("entities", entities);
    RecordProperty("skipped", skipped);
    EXPECT_GT(entities, 0);
    // The whole package has one picture (IMAGE) that is not drawn.
    EXPECT_LE(skipped, 1);
}
