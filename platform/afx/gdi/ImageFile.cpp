// Reading and writing of a CImage by GDI+.
#include "afx/gdi/Image.h"

#include "afx/gdi/GdiPlus.h"

#include <shlwapi.h>

#include <memory>
#include <string>
#include <vector>

namespace
{

struct Format
{
    const wchar_t* extensions;
    const GUID& guid;
};

const Format kFormats[] = {
    {L".bmp;.dib;.rle;", Gdiplus::ImageFormatBMP}, {L".jpg;.jpeg;.jpe;.jfif;", Gdiplus::ImageFormatJPEG},
    {L".png;", Gdiplus::ImageFormatPNG},           {L".gif;", Gdiplus::ImageFormatGIF},
    {L".tif;.tiff;", Gdiplus::ImageFormatTIFF},
};

HRESULT ResultOf(Gdiplus::Status status)
{
    switch (status)
    {
    case Gdiplus::Ok:
        return S_OK;
    case Gdiplus::OutOfMemory:
        return E_OUTOFMEMORY;
    case Gdiplus::InvalidParameter:
        return E_INVALIDARG;
    case Gdiplus::FileNotFound:
        return HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND);
    case Gdiplus::AccessDenied:
        return E_ACCESSDENIED;
    default:
        return E_FAIL;
    }
}

// The format of the file's extension; GUID_NULL for an extension that nobody knows.
GUID FormatOfName(LPCTSTR fileName)
{
    std::wstring extension = ::PathFindExtensionW(fileName);
    if (extension.empty())
        return Gdiplus::ImageFormatBMP;
    ::CharLowerW(&extension[0]);
    for (const Format& format : kFormats)
    {
        if (std::wstring(format.extensions).find(extension + L";") != std::wstring::npos)
            return format.guid;
    }
    return GUID_NULL;
}

bool FindEncoder(REFGUID format, CLSID& encoder)
{
    UINT count = 0;
    UINT size = 0;
    if (Gdiplus::GetImageEncodersSize(&count, &size) != Gdiplus::Ok || size == 0)
        return false;
    std::vector<BYTE> buffer(size);
    Gdiplus::ImageCodecInfo* const codecs = reinterpret_cast<Gdiplus::ImageCodecInfo*>(buffer.data());
    if (Gdiplus::GetImageEncoders(count, size, codecs) != Gdiplus::Ok)
        return false;
    for (UINT i = 0; i < count; ++i)
    {
        if (::IsEqualGUID(codecs[i].FormatID, format))
        {
            encoder = codecs[i].Clsid;
            return true;
        }
    }
    return false;
}

// The format in memory that keeps what the file holds. Pixels smaller than a byte become full colours: not every GDI+
// hands out the last ones of a row.
Gdiplus::PixelFormat FormatInMemory(Gdiplus::PixelFormat source)
{
    if (Gdiplus::IsAlphaPixelFormat(source))
        return PixelFormat32bppPARGB;
    switch (source)
    {
    case PixelFormat8bppIndexed:
    case PixelFormat32bppRGB:
        return source;
    default:
        return PixelFormat24bppRGB;
    }
}

Gdiplus::PixelFormat FormatOfBits(int bits, bool alpha)
{
    switch (bits)
    {
    case 1:
        return PixelFormat1bppIndexed;
    case 4:
        return PixelFormat4bppIndexed;
    case 8:
        return PixelFormat8bppIndexed;
    case 16:
        return PixelFormat16bppRGB555;
    case 24:
        return PixelFormat24bppRGB;
    default:
        return alpha ? PixelFormat32bppPARGB : PixelFormat32bppRGB;
    }
}

const UINT kMostColors = 256;

// The colours of a picture as GDI+ takes them: a head of two numbers, then the colours.
class Palette
{
public:
    Palette() : m_words() {}

    Gdiplus::ColorPalette* Get() { return reinterpret_cast<Gdiplus::ColorPalette*>(m_words); }
    Gdiplus::ARGB* Colors() { return m_words + kHeadWords; }
    UINT Count() const { return m_words[kHeadWords - 1]; }
    void SetCount(UINT count) { m_words[kHeadWords - 1] = count; }
    INT Size() const { return static_cast<INT>(sizeof(m_words)); }

private:
    static const UINT kHeadWords = 2;

    Gdiplus::ARGB m_words[kHeadWords + kMostColors];
};

// Colours of an indexed file. One with a transparent entry is left to the alpha channel: `hasAlpha` tells.
std::vector<RGBQUAD> ColorsOf(Gdiplus::Bitmap& source, bool& hasAlpha)
{
    Palette palette;
    std::vector<RGBQUAD> colors;
    const INT size = source.GetPaletteSize();
    if (size <= 0 || size > palette.Size() || source.GetPalette(palette.Get(), size) != Gdiplus::Ok)
        return colors;
    for (UINT i = 0; i < std::min(palette.Count(), kMostColors); ++i)
    {
        const Gdiplus::Color color(palette.Colors()[i]);
        hasAlpha = hasAlpha || color.GetA() != 0xff;
        colors.push_back({color.GetB(), color.GetG(), color.GetR(), 0});
    }
    return colors;
}

HRESULT CopyPixels(Gdiplus::Bitmap& source, Gdiplus::PixelFormat format, CImage& image)
{
    Gdiplus::Rect all(0, 0, image.GetWidth(), image.GetHeight());
    Gdiplus::BitmapData data = {};
    data.Width = static_cast<UINT>(all.Width);
    data.Height = static_cast<UINT>(all.Height);
    data.Stride = image.GetPitch();
    data.PixelFormat = format;
    data.Scan0 = image.GetBits();
    const UINT mode = Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeUserInputBuf;
    const Gdiplus::Status status = source.LockBits(&all, mode, format, &data);
    if (status != Gdiplus::Ok)
        return ResultOf(status);
    return ResultOf(source.UnlockBits(&data));
}

HRESULT Read(Gdiplus::Bitmap& source, CImage& image)
{
    const Gdiplus::Status opened = source.GetLastStatus(); // which forgets it by being asked
    if (opened != Gdiplus::Ok)
        return ResultOf(opened);
    Gdiplus::PixelFormat format = FormatInMemory(source.GetPixelFormat());
    std::vector<RGBQUAD> colors;
    bool alpha = format == PixelFormat32bppPARGB;
    if (Gdiplus::IsIndexedPixelFormat(format))
        colors = ColorsOf(source, alpha);
    if (alpha)
        format = PixelFormat32bppPARGB;
    // GDI+ writes the rows into the buffer from the top on.
    const int height = -static_cast<int>(source.GetHeight());
    if (!image.Create(static_cast<int>(source.GetWidth()), height,
                      static_cast<int>(Gdiplus::GetPixelFormatSize(format)), alpha ? CImage::createAlphaChannel : 0))
        return E_OUTOFMEMORY;
    if (image.IsIndexed() && !colors.empty())
        image.SetColorTable(0, static_cast<UINT>(colors.size()), colors.data());
    return CopyPixels(source, format, image);
}

// A view of the picture's own memory, or a copy of a bitmap whose memory can't be reached.
std::unique_ptr<Gdiplus::Bitmap> ViewOf(const CImage& image, bool hasAlpha)
{
    if (!image.IsDIBSection())
        return std::unique_ptr<Gdiplus::Bitmap>(new Gdiplus::Bitmap(static_cast<HBITMAP>(image), NULL));
    BYTE* const bits = static_cast<BYTE*>(const_cast<void*>(image.GetBits()));
    std::unique_ptr<Gdiplus::Bitmap> view(new Gdiplus::Bitmap(image.GetWidth(), image.GetHeight(), image.GetPitch(),
                                                              FormatOfBits(image.GetBPP(), hasAlpha), bits));
    if (!image.IsIndexed())
        return view;
    RGBQUAD colors[kMostColors] = {};
    Palette palette;
    palette.SetCount(static_cast<UINT>(image.GetMaxColorTableEntries()));
    image.GetColorTable(0, palette.Count(), colors);
    for (UINT i = 0; i < palette.Count(); ++i)
        palette.Colors()[i] = Gdiplus::Color::MakeARGB(0xff, colors[i].rgbRed, colors[i].rgbGreen, colors[i].rgbBlue);
    view->SetPalette(palette.Get());
    return view;
}

} // namespace

HRESULT CImage::Load(LPCTSTR fileName)
{
    if (fileName == NULL)
        return E_POINTER;
    if (!CGdiPlusSession::Start())
        return E_FAIL;
    CImage loaded;
    Gdiplus::Bitmap source(fileName);
    const HRESULT result = Read(source, loaded);
    if (SUCCEEDED(result))
        Take(loaded);
    return result;
}

HRESULT CImage::Load(IStream* stream)
{
    if (stream == NULL)
        return E_POINTER;
    if (!CGdiPlusSession::Start())
        return E_FAIL;
    CImage loaded;
    Gdiplus::Bitmap source(stream);
    const HRESULT result = Read(source, loaded);
    if (SUCCEEDED(result))
        Take(loaded);
    return result;
}

HRESULT CImage::Save(LPCTSTR fileName, REFGUID fileType) const
{
    if (fileName == NULL)
        return E_POINTER;
    const GUID format = ::IsEqualGUID(fileType, GUID_NULL) ? FormatOfName(fileName) : fileType;
    CLSID encoder = {};
    if (IsNull() || !CGdiPlusSession::Start() || !FindEncoder(format, encoder))
        return E_FAIL;
    return ResultOf(ViewOf(*this, m_hasAlpha)->Save(fileName, &encoder, NULL));
}

HRESULT CImage::Save(IStream* stream, REFGUID fileType) const
{
    if (stream == NULL)
        return E_POINTER;
    CLSID encoder = {};
    if (IsNull() || !CGdiPlusSession::Start() || !FindEncoder(fileType, encoder))
        return E_FAIL;
    return ResultOf(ViewOf(*this, m_hasAlpha)->Save(stream, &encoder, NULL));
}
