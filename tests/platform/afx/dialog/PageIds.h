// Numbers of the resources in Pages.rc.
#ifndef PAGE_IDS_H
#define PAGE_IDS_H

#define IDD_EXTENDED_PAGE 201
#define IDD_PLAIN_PAGE 202
#define IDD_PAGE_WITHOUT_FONT 203
#define IDC_PAGE_LABEL 211
#define IDC_PAGE_CORNER 212

#endif
