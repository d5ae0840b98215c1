// The names that client modules link against, slips included.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "LoadedModule.h"

namespace
{

const char* const kEditNames[] = {
    "SetInputFloat",
    "SetInputSInt",
    "SetInputInt",
    "SetInputFloatSim",
    "SetInputSIntSim",
    "SetInputIntSim",
    "SetValidCharSet",
    "SetValidChars",
    "GetValidChars",
    "SetValidSet",
    "GetValidSet",
    "SetTextLenMinMax",
    "GetTextMinLen",
    "GetTextMaxLen",
    "SetAllValue",
    "GetAllValue",
    "SetPrecValue",
    "PrecValue",
    "GetWindowValue",
    "SetWindowValue",
    "SetEnableLengthCheck",
    "GetEnableLengthCheck",
    "SetEnableRangeCheck",
    "GetEnableRangeCheck",
    "SetEableValueCheck",
    "GetEableValueCheck",
    "SetEmptyValid",
    "GetEmptyValid",
    "SetAllCharEntry",
    "GetAllCharEntry",
    "SetDisableValidation",
    "GetDisableValidation",
    "SetCustomValidation",
    "GetCustomValidation",
    "SetCustomErrorIsValid",
    "GetCustomErrorIsValid",
    "SetBrushColour",
    "GetBrushColour",
    "SetTipText",
    "GetTipText",
    "SetEableTip",
    "GetEableTip",
    "IsValid",
    "IsValidSyntax",
    "IsValidLength",
    "IsValidValue",
    "DoValidation",
    "CheckAlphaNum",
    "CheckDecimal",
    "CheckAlpha",
    "CheckHexadecimal",
    "CheckOctal",
    "CheckBinary",
    "CheckFloat",
    "CheckLen",
    "CheckRange",
    "SelectAll",
};

const char* const kDialogNames[] = {"Input",  "GetDialogWindow", "GetTipControl", "GetEditControl", "Title",
                                    "TipMsg", "DefaultValue",    "OnInitDialog",  "OnOk",           "OnCancel"};

// As a member function of the class, constant or not.
void ExpectMember(const LoadedModule& module, const std::string& className, const std::string& name)
{
    const std::string tail = std::to_string(className.size()) + className + std::to_string(name.size()) + name + "E";
    try
    {
        module.Find<FARPROC>("_ZN" + tail);
    }
    catch (const std::runtime_error&)
    {
        EXPECT_NO_THROW(module.Find<FARPROC>("_ZNK" + tail)) << className << "::" << name;
    }
}

} // namespace

TEST(EditExports, ValidatingEditIsExportedUnderItsNames)
{
    const LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    for (const char* name : kEditNames)
        ExpectMember(module, "CSuperEdit", name);
}

TEST(EditExports, InputDialogIsExportedUnderItsNames)
{
    const LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    for (const char* name : kDialogNames)
        ExpectMember(module, "CInputDialog", name);
}
