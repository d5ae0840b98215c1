// Identifiers of the module's resources and of the controls in its dialogs.
#pragma once

#define IDD_MSG_VIEWER 102
#define IDD_INPUT 103
#define IDD_CHECK_SPECIFICATION 1000

#define IDI_TREE 104
#define IDI_DELETE 105
#define IDI_DELETE_ALL 106
#define IDI_FLASH 107
#define IDI_ZOOM 108
#define IDI_SELECT 1001

#define IDB_TREE_IMAGES 109
#define IDB_LIST_IMAGES 110

#define IDR_EDIT_MENU 115

// Controls of the message viewer.
#define IDC_TAB 100
#define IDC_SHOW_TREE 101
#define IDC_LIST 103
#define IDC_COUNT 104
#define IDC_TREE 105
#define IDC_DELETE_SELECTED 106
#define IDC_DELETE_SHOWN 107
#define IDC_ZOOM 108
#define IDC_FLASH 109
#define IDC_SEPARATOR_DELETE 110
#define IDC_SEPARATOR_ZOOM 111
#define IDC_SELECT 112

// Controls of the input dialog.
#define IDC_INPUT_TEXT 100
#define IDC_INPUT_PROMPT 104

// Controls of the check window.
#define IDC_CHECK_TEXT 112
#define IDC_CHECK_DOCK 113
#define IDC_CHECK_CLOSE 114
