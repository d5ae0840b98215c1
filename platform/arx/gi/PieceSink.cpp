#include "PieceSink.h"

namespace arxgi
{

PieceSink::~PieceSink() = default;

} // namespace arxgi
