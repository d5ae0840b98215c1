// CImage: making, reading and writing pictures, and the files that are none.
#include <atlimage.h>

#include "GdiCount.h"

#include <gtest/gtest.h>
#include <shlwapi.h>

#include <string>
#include <vector>

namespace
{

const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kBlue = RGB(0, 0, 255);
const COLORREF kGreen = RGB(0, 255, 0);

// Of the formats of GDI+.
const GUID kPng = {0xb96b3caf, 0x0728, 0x11d3, {0x9d, 0x7b, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

class Image : public testing::Test
{
protected:
    Image()
    {
        wchar_t folder[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, folder);
        m_folder = folder;
    }

    ~Image() override
    {
        for (const CString& path : m_paths)
            ::DeleteFileW(path);
    }

    CString Path(const wchar_t* name)
    {
        m_paths.push_back(m_folder + L"znkt_image_" + name);
        ::DeleteFileW(m_paths.back());
        return m_paths.back();
    }

    CString Write(const wchar_t* name, const std::vector<BYTE>& bytes)
    {
        const CString path = Path(name);
        CFile file(path, CFile::modeCreate | CFile::modeWrite);
        file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
        return path;
    }

    // Three by two, each corner told by its colour.
    static void Paint(CImage& image, int bits, int height = 2)
    {
        ASSERT_TRUE(image.Create(3, height, bits));
        for (int y = 0; y < 2; ++y)
        {
            for (int x = 0; x < 3; ++x)
                image.SetPixel(x, y, kGreen);
        }
        image.SetPixel(0, 0, kRed);
        image.SetPixel(2, 1, kBlue);
    }

    static void ExpectPainted(const CImage& image)
    {
        ASSERT_EQ(3, image.GetWidth());
        ASSERT_EQ(2, image.GetHeight());
        EXPECT_EQ(kRed, image.GetPixel(0, 0));
        EXPECT_EQ(kGreen, image.GetPixel(2, 0));
        EXPECT_EQ(kGreen, image.GetPixel(0, 1));
        EXPECT_EQ(kBlue, image.GetPixel(2, 1));
    }

    CString m_folder;
    std::vector<CString> m_paths;
};

std::vector<BYTE> BitmapFile(DWORD width, DWORD height, size_t pixelBytes)
{
    BITMAPFILEHEADER head = {};
    BITMAPINFOHEADER info = {};
    head.bfType = 0x4d42;
    head.bfOffBits = sizeof(head) + sizeof(info);
    info.biSize = sizeof(info);
    info.biWidth = static_cast<LONG>(width);
    info.biHeight = static_cast<LONG>(height);
    info.biPlanes = 1;
    info.biBitCount = 24;
    std::vector<BYTE> bytes(head.bfOffBits + pixelBytes);
    head.bfSize = static_cast<DWORD>(bytes.size());
    memcpy(bytes.data(), &head, sizeof(head));
    memcpy(bytes.data() + sizeof(head), &info, sizeof(info));
    return bytes;
}

} // namespace

TEST_F(Image, StartsNull)
{
    CImage image;
    EXPECT_TRUE(image.IsNull());
    EXPECT_EQ(0, image.GetWidth());
    EXPECT_EQ(0, image.GetHeight());
    EXPECT_EQ(nullptr, image.GetBits());
    EXPECT_EQ(static_cast<HBITMAP>(NULL), static_cast<HBITMAP>(image));
    image.Destroy();
    EXPECT_TRUE(image.IsNull());
}

TEST_F(Image, CreateMakesABlackPictureOfEveryPixelSize)
{
    for (const int bits : {1, 4, 8, 16, 24, 32})
    {
        CImage image;
        ASSERT_TRUE(image.Create(3, 2, bits)) << bits;
        EXPECT_FALSE(image.IsNull());
        EXPECT_EQ(3, image.GetWidth());
        EXPECT_EQ(2, image.GetHeight());
        EXPECT_EQ(bits, image.GetBPP());
        EXPECT_EQ(-((3 * bits + 31) / 32 * 4), image.GetPitch()) << bits;
        EXPECT_EQ(bits <= 8, image.IsIndexed());
        EXPECT_EQ(bits <= 8 ? 1 << bits : 0, image.GetMaxColorTableEntries());
        EXPECT_EQ(COLORREF(0), image.GetPixel(2, 1));
    }
}

TEST_F(Image, BitsPointToTheTopRowOfEitherOrder)
{
    for (const int height : {2, -2})
    {
        CImage image;
        Paint(image, 32, height);
        EXPECT_EQ(height > 0 ? -12 : 12, image.GetPitch());
        ::GdiFlush();
        const BYTE* const top = static_cast<const BYTE*>(image.GetBits());
        const DWORD* const last = reinterpret_cast<const DWORD*>(top + image.GetPitch());
        EXPECT_EQ(0xff0000u, reinterpret_cast<const DWORD*>(top)[0] & 0xffffff);
        EXPECT_EQ(0x0000ffu, last[2] & 0xffffff);
    }
}

TEST_F(Image, ImpossiblePicturesAreNotMade)
{
    CImage image;
    EXPECT_FALSE(image.Create(0, 2, 24));
    EXPECT_FALSE(image.Create(2, 0, 24));
    EXPECT_FALSE(image.Create(-2, 2, 24));
    EXPECT_FALSE(image.Create(2, INT_MIN, 24));
    EXPECT_FALSE(image.Create(2, 2, 23));
    EXPECT_FALSE(image.Create(2, 2, 24, CImage::createAlphaChannel));
    EXPECT_FALSE(image.Create(INT_MAX, INT_MAX, 32));
    EXPECT_FALSE(image.Create(60000, 60000, 32));
    EXPECT_TRUE(image.IsNull());
}

TEST_F(Image, EveryFormatIsReadAsItWasWritten)
{
    for (const wchar_t* name : {L"a.bmp", L"a.PNG", L"a.tif", L"a.tiff", L"图片.png", L"a"})
    {
        const CString path = Path(name);
        CImage written, read;
        Paint(written, 24);
        ASSERT_EQ(S_OK, written.Save(path)) << CStringA(name).GetString();
        ASSERT_EQ(S_OK, read.Load(path)) << CStringA(name).GetString();
        ExpectPainted(read);
        EXPECT_TRUE(::DeleteFileW(path)) << "the file is closed";
    }
}

TEST_F(Image, EveryPixelSizeIsWrittenWithItsColours)
{
    for (const int bits : {4, 8, 16, 24, 32})
    {
        const CString path = Path(L"bits.png");
        CImage written, read;
        ASSERT_TRUE(written.Create(3, 2, bits));
        if (written.IsIndexed())
        {
            const RGBQUAD colors[] = {{0, 0, 0, 0}, {0, 0, 255, 0}, {0, 255, 0, 0}, {255, 0, 0, 0}};
            written.SetColorTable(0, 4, colors);
        }
        for (int i = 0; i < 6; ++i)
            written.SetPixel(i % 3, i / 3, i == 0 ? kRed : i == 5 ? kBlue : kGreen);
        ASSERT_EQ(S_OK, written.Save(path)) << bits;
        ASSERT_EQ(S_OK, read.Load(path)) << bits;
        ExpectPainted(read);
        EXPECT_EQ(bits == 8, read.IsIndexed());
    }
}

TEST_F(Image, LossyAndIndexedFormatsKeepTheSize)
{
    for (const wchar_t* name : {L"a.jpg", L"a.jpeg", L"a.gif"})
    {
        const CString path = Path(name);
        CImage written, read;
        ASSERT_TRUE(written.Create(40, 20, path.Right(4) == L".gif" ? 8 : 24));
        ASSERT_EQ(S_OK, written.Save(path));
        ASSERT_EQ(S_OK, read.Load(path));
        EXPECT_EQ(40, read.GetWidth());
        EXPECT_EQ(20, read.GetHeight());
    }
}

TEST_F(Image, TheTypeGoesBeforeTheExtension)
{
    const CString path = Path(L"typed.bmp");
    CImage written;
    Paint(written, 24);
    ASSERT_EQ(S_OK, written.Save(path, kPng));
    CFile file(path, CFile::modeRead);
    BYTE head[4] = {};
    file.Read(head, sizeof(head));
    EXPECT_EQ('P', head[1]);
}

TEST_F(Image, StreamsAreReadAndWritten)
{
    CImage written, read;
    Paint(written, 24);
    IStream* const stream = ::SHCreateMemStream(NULL, 0);
    ASSERT_EQ(S_OK, written.Save(stream, kPng));
    LARGE_INTEGER start = {};
    stream->Seek(start, STREAM_SEEK_SET, NULL);
    ASSERT_EQ(S_OK, read.Load(stream));
    ExpectPainted(read);
    stream->Release();
}

TEST_F(Image, WhatCannotBeSavedFails)
{
    CImage image;
    EXPECT_TRUE(FAILED(image.Save(Path(L"null.png"))));
    Paint(image, 24);
    EXPECT_TRUE(FAILED(image.Save(Path(L"unknown.xyz"))));
    EXPECT_TRUE(FAILED(image.Save(m_folder + L"no such folder\\a.png")));
    EXPECT_TRUE(FAILED(image.Save(static_cast<LPCTSTR>(NULL))));
    EXPECT_TRUE(FAILED(image.Save(Path(L"typed"), GUID{1, 2, 3, {4}})));
}

TEST_F(Image, FilesThatAreNoPictureFailAndLeaveThePictureAlone)
{
    CImage good;
    Paint(good, 24);
    ASSERT_EQ(S_OK, good.Save(Path(L"good.png")));
    std::vector<BYTE> half(40);
    CFile(m_paths.back(), CFile::modeRead).Read(half.data(), static_cast<UINT>(half.size()));
    const CString names[] = {
        m_folder + L"znkt_image_missing.png",
        m_folder,
        L"",
        L"Q:\\<>|.png",
        Write(L"empty.png", {}),
        Write(L"text.png", {'n', 'o', ' ', 'p', 'i', 'c', 't', 'u', 'r', 'e'}),
        Write(L"half.png", half),
        Write(L"signature.png", {0x89, 'P', 'N', 'G', 13, 10, 26, 10}),
        Write(L"signature.gif", {'G', 'I', 'F', '8', '9', 'a'}),
        Write(L"signature.jpg", {0xff, 0xd8, 0xff, 0xe0}),
        Write(L"huge.bmp", BitmapFile(0x7fffffff, 0x7fffffff, 10)),
        Write(L"nothing.bmp", BitmapFile(0, 0, 0)),
    };
    for (const CString& name : names)
    {
        CImage image;
        Paint(image, 24);
        EXPECT_TRUE(FAILED(image.Load(name))) << CStringA(name).GetString();
        ExpectPainted(image);
    }
    EXPECT_TRUE(FAILED(good.Load(static_cast<LPCTSTR>(NULL))));
    EXPECT_TRUE(FAILED(good.Load(static_cast<IStream*>(NULL))));
}

TEST_F(Image, AFormerPictureIsReleasedByLoading)
{
    const CString path = Path(L"again.png");
    CImage image;
    Paint(image, 24);
    ASSERT_EQ(S_OK, image.Save(path));
    ASSERT_EQ(S_OK, image.Load(path));
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 10; ++i)
        ASSERT_EQ(S_OK, image.Load(path));
    EXPECT_EQ(before, CountGdiObjects());
}

TEST_F(Image, AttachTakesOverAndDetachGivesUp)
{
    CImage image;
    Paint(image, 24);
    const HBITMAP bitmap = image.Detach();
    EXPECT_TRUE(image.IsNull());
    EXPECT_EQ(0, image.GetWidth());
    CImage other;
    other.Attach(bitmap);
    EXPECT_EQ(bitmap, static_cast<HBITMAP>(other));
    EXPECT_TRUE(other.IsDIBSection());
    ExpectPainted(other);
    other.Destroy();
    EXPECT_EQ(0u, ::GetObjectType(bitmap)) << "deleted with its owner";
}

TEST_F(Image, ABitmapThatIsNoDibSectionHasNoBits)
{
    CImage image;
    image.Attach(::CreateBitmap(5, 4, 1, 1, NULL));
    EXPECT_EQ(5, image.GetWidth());
    EXPECT_EQ(4, image.GetHeight());
    EXPECT_FALSE(image.IsDIBSection());
    EXPECT_EQ(nullptr, image.GetBits());
    image.Attach(NULL);
    EXPECT_TRUE(image.IsNull());
}

TEST_F(Image, ItsDeviceContextIsSharedUntilTheLastRelease)
{
    CImage image;
    Paint(image, 24);
    const HDC dc = image.GetDC();
    EXPECT_EQ(dc, image.GetDC());
    EXPECT_EQ(static_cast<HGDIOBJ>(static_cast<HBITMAP>(image)), ::GetCurrentObject(dc, OBJ_BITMAP));
    image.ReleaseDC();
    EXPECT_EQ(kRed, ::GetPixel(dc, 0, 0));
    image.ReleaseDC();
    EXPECT_EQ(0u, ::GetObjectType(dc));
}

TEST_F(Image, DestroyingLeavesNoObjectBehind)
{
    const CString path = Path(L"leak.png");
    CImage written;
    Paint(written, 24);
    ASSERT_EQ(S_OK, written.Save(path));
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 10; ++i)
    {
        CImage image;
        ASSERT_EQ(S_OK, image.Load(path));
        image.GetDC();
        image.Destroy();
        image.Load(m_folder + L"znkt_image_missing.png");
    }
    EXPECT_EQ(before, CountGdiObjects());
}

TEST_F(Image, AMissingResourceLeavesItNull)
{
    CImage image;
    Paint(image, 24);
    image.LoadFromResource(::GetModuleHandleW(NULL), 12345);
    EXPECT_TRUE(image.IsNull());
}

TEST_F(Image, LoadingWorksAgainAfterGdiPlusWasReleased)
{
    const CString path = Path(L"released.png");
    CImage image;
    Paint(image, 24);
    ASSERT_EQ(S_OK, image.Save(path));
    CImage::ReleaseGDIPlus();
    ExpectPainted(image);
    ASSERT_EQ(S_OK, image.Load(path));
    ExpectPainted(image);
}

TEST_F(Image, StartingAndStoppingGdiPlusLeavesNoObjectBehind)
{
    const CString path = Path(L"again.png");
    const auto use = [&path] {
        CImage image;
        Paint(image, 24);
        ASSERT_EQ(S_OK, image.Save(path));
        ASSERT_EQ(S_OK, image.Load(path));
    };
    use();
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 10; ++i)
        use();
    EXPECT_EQ(before, CountGdiObjects());
}
