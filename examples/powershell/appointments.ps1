# Lists the appointments that begin on a day, tomorrow if none is named:
#   powershell -File appointments.ps1 [DAY]      (as 2026-11-23)
param([string] $Day = (Get-Date).AddDays(1).ToString('yyyy-MM-dd', [cultureinfo]::InvariantCulture))
$ErrorActionPreference = 'Stop'

$outlook = New-Object -ComObject ZORBOffice.ZORBOutlook
if (-not $outlook.StartOutlook()) { throw $outlook.GetLastErrorDescription() }

# Dates and times read with the separators of the user's settings: only the digits are sure.
function Get-StartDay {
    $read = $outlook.GetAppointmentProperty('StartDate')
    '{0}-{1}-{2}' -f $read.Substring(6, 4), $read.Substring(3, 2), $read.Substring(0, 2)
}

function Get-StartTime {
    $read = $outlook.GetAppointmentProperty('StartTime')
    '{0}:{1}' -f $read.Substring(0, 2), $read.Substring(3, 2)
}

# A series is one item, which begins when the series does.
$condition = "[Start] <= '$Day 23:59' AND ([Start] >= '$Day 00:00' OR [IsRecurring] = True)"
if (-not $outlook.InitItems('Appointment', $condition)) { throw $outlook.GetLastErrorDescription() }
$lines = for ($found = $outlook.GetFirstItem('Appointment'); $found; $found = $outlook.GetNextItem('Appointment')) {
    $begins = $true
    if ($outlook.GetAppointmentProperty('IsRecurring') -eq 'True') {
        $begins = $outlook.GetAppointmentInstance("$Day $(Get-StartTime)")
    }
    # An occurrence that was moved may answer to the day that it had.
    if ($begins -and (Get-StartDay) -eq $Day) { "$(Get-StartTime) $($outlook.GetAppointmentProperty('Subject'))" }
}
# The control gives series by the day of their first occurrence.
$lines | Sort-Object
