// SPDX-License-Identifier: MIT
#pragma once

namespace Quillory {

/// What comes from outside while the window is in use. A failed write, or a data file that is gone
/// or another, is not among them: it is told as soon as nothing else is being asked. Neither is a
/// change of colours, font or screen: all that is open takes it over and stays open.
enum class Interruption
{
    /// The window's close button, Ctrl+Q, or a signal. Also the end of the desktop's session, once
    /// it was held up.
    End,
    /// The desktop asks whether its session may end.
    SessionEnd,
    /// A second start of the program.
    Start,
    /// A second start that names a list, or asks for a new one.
    StartWithList,
};

/// What the user has before him at that moment.
enum class Front
{
    /// Pages on which nothing is entered that would be lost. What is typed in the place of a line's
    /// text is taken over first, as a tap elsewhere does.
    Pages,
    /// A page with input that an end without Ok would lose, whatever page or pop-up lies over it.
    Input,
    /// A menu, a context menu, or the pop-up of a field, over pages without such input.
    Popup,
    /// A message box or a file dialog.
    Question,
    /// An import or export that shows its progress.
    Work,
};

enum class Response
{
    /// The window comes forward; whatever is open keeps its place and the keyboard.
    ComeForward,
    /// Pop-ups close and pages end from the top; where input would be lost that is asked, and
    /// nothing further happens if it is to stay.
    EndPages,
    /// Nothing is to be done; whatever is open stays.
    Pass,
    /// The interruption is met again once the question is answered, or the work done.
    Wait,
};

[[nodiscard]] Response ResponseTo(Interruption what, Front front);

} // namespace Quillory
