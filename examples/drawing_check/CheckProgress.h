// What the user sees while a drawing is checked: the wait dialog with Cancel.
#pragma once

#include <MsgCallbackImp.h>

namespace drawing_check
{

// The suite's current callback while it lives; opens the wait dialog and closes it at the end.
class CheckProgress : public CMsgCallbackImp
{
public:
    explicit CheckProgress(const wchar_t* title);

    // Shows in the top line how far the reading has got; true when the user cancelled.
    bool OnRead(std::size_t read, std::size_t all);
};

} // namespace drawing_check
