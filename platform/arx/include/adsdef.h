// Types of the C interface.
#pragma once

#include "adesk.h"

#include <stddef.h>

typedef double ads_real;
typedef ads_real ads_point[3];

// An entity or a selection set. Always handled as a whole, by the macros below; the elements have a pointer's size.
typedef intptr_t ads_name[2];

struct ads_binary
{
    short clen;
    char* buf;
};

union ads_u_val {
    ads_real rreal;
    ads_real rpoint[3];
    short rint;
    ACHAR* rstring;
    intptr_t rlname[2];
    Adesk::Int32 rlong;
    Adesk::Int64 mnInt64;
    ads_binary rbinary;
};

// A typed value and the next of its list.
struct resbuf
{
    resbuf* rbnext;
    short restype;
    ads_u_val resval;
};

#define ads_point_set(from, to) ((to)[0] = (from)[0], (to)[1] = (from)[1], (to)[2] = (from)[2])

#define ads_name_set(from, to) ((to)[0] = (from)[0], (to)[1] = (from)[1])
#define ads_name_equal(name1, name2) ((name1)[0] == (name2)[0] && (name1)[1] == (name2)[1])
#define ads_name_clear(name) ((name)[0] = (name)[1] = 0)
#define ads_name_nil(name) ((name)[0] == 0 && (name)[1] == 0)
