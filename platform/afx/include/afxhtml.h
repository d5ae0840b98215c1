// The view that shows web pages.
#pragma once

#include <afxext.h>

#include "afx/html/HtmlView.h"
