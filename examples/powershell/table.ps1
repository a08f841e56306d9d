# Reads the price table out of a document, a line a row:
#   powershell -File table.ps1 DOCUMENT
param([Parameter(Mandatory)] [string] $Document)
$ErrorActionPreference = 'Stop'

# Word has a current folder of its own.
$Document = (Resolve-Path -LiteralPath $Document).ProviderPath

$word = New-Object -ComObject ZORBOffice.ZORBWord
$opened = $false
try {
    if ($word.Start($false) -ne 1) { throw 'Word does not start' }
    $opened = $word.OpenDoc($Document) -eq 1
    if (-not $opened) { throw 'the document cannot be opened' }
    $found = $word.Search('Article', 1, $true, $true, $false, $false, $false, $false, $false)
    if ($found -ne 1 -or $word.InTable -ne 1) { throw 'the document has no price table' }
    while ($word.InTable -eq 1) {
        $cells = for ($cell = 1; $cell -le $word.CellCount; $cell++) {
            # A cell's text ends in its end mark, and holds paragraph marks in between.
            $word.CellText($cell).Replace("`r`a", '').Replace("`r", ' ')
        }
        $cells -join ' | '
        # Behind a row that is selected as a whole lies the next one, or the text after the table.
        [void] $word.SelectRow()
        [void] $word.CursorRight(1, 1, 0)
    }
}
finally {
    # Without a document closing shows a box.
    if ($opened) { [void] $word.CloseDoc(0) }
    # Word stays behind unless it is told to quit. Where it could not be created, this fails with "Object required".
    try { [void] $word.StopWord($true) } catch { }
}
