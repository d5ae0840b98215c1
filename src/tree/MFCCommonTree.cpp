#include "tree/MFCCommonTree.h"

IMPLEMENT_DYNAMIC(CMFCCommonTree, CAddedIconTreeCtrl)

BEGIN_MESSAGE_MAP(CMFCCommonTree, CAddedIconTreeCtrl)
END_MESSAGE_MAP()

CMFCCommonTree::CMFCCommonTree() {}

CMFCCommonTree::~CMFCCommonTree() {}
