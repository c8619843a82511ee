// SPDX-License-Identifier: MIT
#include "desktop/interruptions.h"

#include <array>
#include <cstddef>

namespace Quillory {

namespace {

using enum Response;

constexpr std::array<std::array<Response, 5>, 4> kResponses { {
    // Pages, Input, Popup, Question, Work
    { EndPages, EndPages, EndPages, Wait, Wait }, // End
    { Pass, EndPages, Pass, Wait, Wait }, // SessionEnd
    { ComeForward, ComeForward, ComeForward, ComeForward, ComeForward }, // Start
    { EndPages, EndPages, EndPages, Wait, Wait }, // StartWithList
} };

} // namespace

Response ResponseTo(Interruption what, Front front)
{
    return kResponses.at(static_cast<std::size_t>(what)).at(static_cast<std::size_t>(front));
}

} // namespace Quillory
