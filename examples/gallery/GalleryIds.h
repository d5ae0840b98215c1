// Resource identifiers of the gallery. Every page has a block of fifty of its own: the template first, then the
// controls.
#ifndef GALLERY_IDS_H
#define GALLERY_IDS_H

// The window: 1000 to 1049
#define IDD_GALLERY 1000
#define IDC_GALLERY_SEARCH_LABEL 1001
#define IDC_GALLERY_SEARCH 1002
#define IDC_GALLERY_TREE 1003
#define IDC_GALLERY_TITLE 1004
#define IDC_GALLERY_DESCRIPTION 1005
#define IDC_GALLERY_PAGE_AREA 1006
#define IDC_GALLERY_CODE_LABEL 1007
#define IDC_GALLERY_CODE 1008

// Validating edit: 1050 to 1099; each column has one control a row
#define IDD_SUPER_EDIT_PAGE 1050
#define IDC_SUPER_EDIT_TEXT 1051
#define IDC_SUPER_EDIT_VERDICT 1062
#define IDC_SUPER_EDIT_RANGE 1073
#define IDC_SUPER_EDIT_NOTICE 1084

// Input dialog: 1100 to 1149
#define IDD_INPUT_DIALOG_PAGE 1100
#define IDC_INPUT_DIALOG_ASK 1101
#define IDC_INPUT_DIALOG_ANSWER 1102

// Sortable list: 1150 to 1199
#define IDD_SORT_LIST_PAGE 1150
#define IDC_SORT_LIST 1151

// Editable list: 1200 to 1249
#define IDD_EDITABLE_LIST_PAGE 1200
#define IDC_EDITABLE_LIST 1201
#define IDC_EDITABLE_LIST_UP 1202
#define IDC_EDITABLE_LIST_DOWN 1203
#define IDC_EDITABLE_LIST_INSERT 1204
#define IDC_EDITABLE_LIST_DELETE 1205

#endif
