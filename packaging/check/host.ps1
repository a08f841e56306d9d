# Creates the three controls, asks each for its last error, and counts the members that PowerShell sees.
$names = 'ZORBWord', 'ZORBOutlook', 'OpenWriter'
$controls = $names | ForEach-Object { New-Object -ComObject "ZORBOffice.$_" }
# With one control it is a method, with the others a property get.
$numbers = $controls | ForEach-Object { 
  [System.__ComObject].InvokeMember('GetLastErrorNumber', 'InvokeMethod, GetProperty', $null, $_, $null)
}
Write-Output ((0..2 | ForEach-Object { $names[$_] + ' ' + $numbers[$_] }) -join ', ')
$counts = $controls | ForEach-Object { @(Get-Member -InputObject $_ -MemberType Method, Property, ParameterizedProperty).Count }
Write-Output ('members ' + ($counts -join ', '))
