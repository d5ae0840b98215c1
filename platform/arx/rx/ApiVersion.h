// The generation of the host interface. Modules of another generation are refused.
#pragma once

namespace arxrx
{

// Release family 18.
const int kApiVersion = 18;

} // namespace arxrx
