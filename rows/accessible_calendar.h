// SPDX-License-Identifier: MIT
#pragma once

class QCalendarWidget;

namespace Quillory {

/// Lets assistive technology meet the days of the calendars that are made from now on as whole
/// dates. The toolkit gives the numbers alone.
void MeetDays();
/// Names what there is to be pressed in a calendar, and has a screen reader say the month when
/// another one is shown.
void NameParts(QCalendarWidget& calendar);

} // namespace Quillory
