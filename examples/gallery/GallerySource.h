// The sources of the pages, which the module holds as resources.
#pragma once

#include <afxwin.h>

// The source of a page, header first: "sort-list" has SortListPage.h and SortListPage.cpp. Empty for another name.
CString SourceOfPage(const wchar_t* name);
