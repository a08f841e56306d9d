using System;
using System.Collections.Generic;

static class Calendar
{
    public static string Tomorrow { get { return DateTime.Today.AddDays(1).ToString("yyyy'-'MM'-'dd"); } }

    public static string[] Appointments(HeldControl outlook, string day)
    {
        Func<string, string> read = key => (string)outlook.Ask("GetAppointmentProperty", key);
        // Dates and times read with the separators of the user's settings: only the digits are sure.
        Func<string, int, int, string> part = (key, first, length) => read(key).Substring(first, length);
        Func<string> startDay = () => part("StartDate", 6, 4) + "-" + part("StartDate", 3, 2) + "-" + part("StartDate", 0, 2);
        Func<string> startTime = () => part("StartTime", 0, 2) + ":" + part("StartTime", 3, 2);
        // A series is one item, which begins when the series does.
        var condition = "[Start] <= '" + day + " 23:59' AND ([Start] >= '" + day + " 00:00' OR [IsRecurring] = True)";
        if (!outlook.Does("StartOutlook") || !outlook.Does("InitItems", "Appointment", condition))
            throw new InvalidOperationException((string)outlook.Ask("GetLastErrorDescription"));
        var lines = new List<string>();
        for (var found = outlook.Does("GetFirstItem", "Appointment"); found; found = outlook.Does("GetNextItem", "Appointment"))
        {
            var begins = read("IsRecurring") != "True" || outlook.Does("GetAppointmentInstance", day + " " + startTime());
            // An occurrence that was moved may answer to the day that it had.
            if (begins && startDay() == day) lines.Add(startTime() + " " + read("Subject"));
        }
        // The control gives series by the day of their first occurrence.
        lines.Sort(StringComparer.Ordinal);
        return lines.ToArray();
    }
}
