// Guard: a PNG file in the folder for temporary files, which is not there at first and gone afterwards.
#pragma once

#include <afxwin.h>

#include <fstream>
#include <string>

class PictureFile
{
public:
    explicit PictureFile(const wchar_t* name)
    {
        wchar_t folder[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        m_path = std::wstring(folder) + name;
        ::DeleteFileW(m_path.c_str());
    }
    ~PictureFile() { ::DeleteFileW(m_path.c_str()); }
    PictureFile(const PictureFile&) = delete;
    PictureFile& operator=(const PictureFile&) = delete;

    const std::wstring& Path() const { return m_path; }

    // Of the picture that was saved; (0, 0) for none.
    CSize Size() const
    {
        const int header = 24; // signature, chunk head, width, height
        std::string bytes(header, '\0');
        std::ifstream file(std::string(m_path.begin(), m_path.end()), std::ios::binary);
        file.read(&bytes[0], header);
        const auto number = [&bytes](int at) {
            int value = 0;
            for (int i = at; i < at + 4; ++i)
                value = value * 256 + static_cast<unsigned char>(bytes[static_cast<size_t>(i)]);
            return value;
        };
        return CSize(number(16), number(20));
    }

private:
    std::wstring m_path;
};
