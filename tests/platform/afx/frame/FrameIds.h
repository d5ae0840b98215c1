// Numbers of the resources in Frame.rc.
#ifndef FRAME_IDS_H
#define FRAME_IDS_H

#define IDR_FRAME_WITH_ICON 301 // the next number has no resource

#endif
