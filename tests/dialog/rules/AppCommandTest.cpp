// Which addresses are commands.
#include <gtest/gtest.h>

#include <string>

#include "dialog/AppCommand.h"

namespace
{

struct AddressRow
{
    const char* name;
    const wchar_t* address;
    const wchar_t* command; // null: the address navigates
};

class CommandOfAddressTable : public testing::TestWithParam<AddressRow>
{
};

TEST_P(CommandOfAddressTable, Decides)
{
    const wchar_t* const command = CommandOfAddress(GetParam().address);
    if (GetParam().command == nullptr)
    {
        EXPECT_EQ(nullptr, command);
        return;
    }
    ASSERT_NE(nullptr, command);
    EXPECT_STREQ(GetParam().command, command);
}

const AddressRow kRows[] = {
    {"Command", L"app:open?id=3", L"open?id=3"},
    {"CapitalLetters", L"APP:open?id=3", L"open?id=3"},
    {"MixedLetters", L"aPp:Open", L"Open"},
    {"WithoutACommand", L"app:", L""},
    {"OnlyTheFirstPrefixGoes", L"app:app:x", L"app:x"},
    {"SlashesBelongToTheCommand", L"app://open", L"//open"},
    {"NotAsciiText", L"app:\u6253\u5F00 %20", L"\u6253\u5F00 %20"},
    {"ApplicationPage", L"application.html", nullptr},
    {"TooShort", L"app", nullptr},
    {"Empty", L"", nullptr},
    {"LeadingBlank", L" app:open", nullptr},
    {"OtherScheme", L"http://app:80/", nullptr},
    {"WideLetters", L"\uFF41pp:open", nullptr},
    {"Null", nullptr, nullptr},
};

INSTANTIATE_TEST_SUITE_P(Addresses, CommandOfAddressTable, testing::ValuesIn(kRows),
                         [](const testing::TestParamInfo<AddressRow>& row) { return std::string(row.param.name); });

} // namespace
