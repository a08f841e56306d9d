# Fills a letter from a template for one customer, and saves it:
#   powershell -File letter.ps1 TEMPLATE OUTPUT NAME
param(
    [Parameter(Mandatory)] [string] $Template,
    [Parameter(Mandatory)] [string] $Output,
    [Parameter(Mandatory)] [string] $Name
)
$ErrorActionPreference = 'Stop'
$replaceAll = 2

# Word has a current folder of its own, and .NET another than PowerShell.
$paths = $ExecutionContext.SessionState.Path
$Template = $paths.GetUnresolvedProviderPathFromPSPath($Template)
$Output = $paths.GetUnresolvedProviderPathFromPSPath($Output)
if (Test-Path -LiteralPath $Output) { throw "$Output exists" }

function Set-Field($Field, $Value) {
    # A "^" begins a code of Word's.
    $text = $Value.Replace('^', '^^')
    [void] $word.Replace("<<$Field>>", $text, 1, $true, $true, $false, $false, $false, $false, $false, $replaceAll)
}

$word = New-Object -ComObject ZORBOffice.ZORBWord
$created = $false
try {
    # Published as a property: it runs only with parentheses.
    if ($word.Start($false) -ne 1) { throw 'Word does not start' }
    $created = $word.CreateDoc($Template) -eq 1
    if (-not $created) { throw 'the template cannot be opened' }
    Set-Field 'Name' $Name
    Set-Field 'Order' '12 boxes of paper, EUR 49.90 each'
    $text = $word.ReadText(0, 0)
    if (-not $text -or $text.Contains('<<')) { throw 'a field is left in the letter' }
    [void] $word.SaveDoc($Output)
    # Saving has no result.
    if (-not (Test-Path -LiteralPath $Output)) { throw 'the letter cannot be saved' }
    "saved $(Split-Path -Leaf $Output)"
}
finally {
    # Word asks about changes when it quits, not when a document is closed without them. Without a document this shows a box.
    if ($created) { [void] $word.CloseDoc(0) }
    # Word stays behind unless it is told to quit. Where it could not be created, this fails with "Object required".
    try { [void] $word.StopWord($true) } catch { }
}
