// Templates of the pages that tests of the tab sheet show.
#ifndef TAB_SHEET_PAGES_H
#define TAB_SHEET_PAGES_H

#define IDD_TEST_PAGE 4001
#define IDD_TEST_VISIBLE_PAGE 4002
#define IDD_TEST_MISSING_PAGE 4099

#endif
