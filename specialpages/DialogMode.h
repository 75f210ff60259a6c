// Whether a record dialog makes new records or edits one.
#pragma once

namespace orvan {

enum class DialogMode : int
{
    Add = 0,
    Edit = 1,
};

} // namespace orvan
