// Selection sets, input and commands of the C interface.
//
// Selection sets: at most 128 exist at a time. Every set that a call made must be freed with acedSSFree(), an empty one
// as well. A set names entities of the current drawing; erased entities stay in it until the set is freed.
#pragma once

#include "adsdef.h"
#include "adscodes.h"
#include "arx/Api.h"

// Fills a new set. `mode`: "X" all entities of model space, "A" all on layers that are not frozen, "_I" the pickfirst
// set, "_P" the previous set, "_L" the last entity, "W" entities inside the box of the two ads_points, "C" entities
// that reach into it (by their boxes), "" or null asks the user. An underscore before a letter is allowed.
// `filter` limits the entities by DXF codes: 0 record name, 8 layer, 62 colour index, 5 handle; texts may hold wild
// cards * ? and alternatives separated by commas.
// RTERROR when nothing was found or no set is free, RTCAN when the user gave up, RTREJ for another mode.
ARX_API int acedSSGet(const ACHAR* mode, const void* point1, const void* point2, const resbuf* filter, ads_name result);
// Both null: a new empty set. Only `ename`: a new set with this entity. Both: adds to the set, nothing happens when it
// is in. `sname` and `result` may be the same.
ARX_API int acedSSAdd(const ads_name ename, const ads_name sname, ads_name result);
// RTERROR when it is not in.
ARX_API int acedSSDel(const ads_name ename, const ads_name sname);
ARX_API int acedSSFree(const ads_name sname);
ARX_API int acedSSLength(const ads_name sname, Adesk::Int32* length);
// `index` counts from 0; RTERROR outside the set.
ARX_API int acedSSName(const ads_name sname, int index, ads_name result);
// RTNORM when the entity is in the set.
ARX_API int acedSSMemb(const ads_name ename, const ads_name sname);
// Makes the members of the set the pickfirst selection; null, or an empty set, clears it. The second is ignored. The
// set itself stays the caller's.
ARX_API int acedSSSetFirst(const ads_name pickfirst, const ads_name unused);
// A new set of the pickfirst selection in `*pickfirst` (type RTPICKS), null when there is none; the caller frees the
// list and the set. `*grips` is always null. RTERROR when nothing is selected or no set is free.
ARX_API int acedSSGetFirst(resbuf** grips, resbuf** pickfirst);

// The next answer on the command line. `cronly` 0: it ends at a space; else it is the rest of the line. RTCAN when the
// user gave up or nobody is there to answer. Up to 132 characters and the end mark are written.
ARX_API int acedGetString(int cronly, const ACHAR* prompt, ACHAR* result);
// The answer as a number. RTREJ for other text.
ARX_API int acedGetInt(const ACHAR* prompt, int* result);
ARX_API int acedGetReal(const ACHAR* prompt, ads_real* result);
// A point in drawing units, picked in the view of the current drawing or typed as "x,y" or "x,y,z"; z is 0 else.
// Another text is refused and asked for again. RTNONE for Enter alone (in a line of answers: ""), RTCAN when the user
// gave up, the document or the program is closed, or nobody is there to answer; `result` is written with RTNORM only.
// `base` may be null: the host draws no line from it.
ARX_API int acedGetPoint(const ads_point base, const ACHAR* prompt, ads_point result);

// Runs one command with its answers, given in pairs of type and value as in acutBuildList() and closed by RTNONE or 0.
// RTERROR for an unknown command.
ARX_API int acedCommand(int type, ...);
ARX_API int acedCmd(const resbuf* list);

// Shows the command prompt afresh.
ARX_API void acedPostCommandPrompt();
// Prints on the command line, without formatting.
ARX_API int acedPrompt(const ACHAR* text);

// Entities by name
ARX_API int acdbEntLast(ads_name result);
// The first entity of model space for a null `ename`, else the next that is not erased. RTERROR at the end.
ARX_API int acdbEntNext(const ads_name ename, ads_name result);
// Erases the entity, or brings it back.
ARX_API int acdbEntDel(const ads_name ename);
ARX_API int acdbHandEnt(const ACHAR* handle, ads_name result);
