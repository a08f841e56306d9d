{ The three jobs of examples/README.md: Jobs letter TEMPLATE OUTPUT NAME | table DOCUMENT | appointments [DAY] }
program Jobs;

{$APPTYPE CONSOLE}
{$IFDEF FPC}{$MODE DELPHI}{$H+}{$CODEPAGE UTF8}{$ENDIF}

uses
  Classes, SysUtils, ZORBOffice in '../../bindings/pascal/ZORBOffice.pas';

procedure Require(Holds: Boolean; const Reason: string);
begin
  if not Holds then raise Exception.Create(Reason);
end;

{ Word stays behind unless it is told to quit, and asks about changes unless the document is closed without them. }
procedure Leave(var Word: TZORBWord);
begin
  Word.CloseDoc(wdDoNotSaveChanges);
  Word.StopWord(True);
end;

function Opened(const Path: string; IsTemplate: Boolean): TZORBWord;
begin
  Result := TZORBWord.Create;
  Require(Result.Start, 'Word does not start');
  if IsTemplate and Result.CreateDoc(Path) or not IsTemplate and Result.OpenDoc(Path) then Exit;
  Result.StopWord(True);
  raise Exception.Create('cannot be opened: ' + Path);
end;

procedure Letter(const Template, Output, Name: string);
var
  Word: TZORBWord;
  Text: string;

  procedure Fill(const Field, Value: string);
  begin
    { A "^" begins a code of Word's. }
    Word.Replace(Field, StringReplace(Value, '^', '^^', [rfReplaceAll]), wdFindContinue, True, True, False, False, False, False,
      False, wdReplaceAll);
  end;

begin
  Require(not FileExists(Output), Output + ' exists');
  Word := Opened(Template, True);
  try
    Fill('<<Name>>', Name);
    Fill('<<Order>>', '12 boxes of paper, EUR 49.90 each');
    Text := Word.ReadText(0, 0);
    Require((Text <> '') and (Pos('<<', Text) = 0), 'a field is left in the letter');
    Word.SaveDoc(Output);
    Require(FileExists(Output), 'the letter cannot be saved');  { saving has no result }
  finally
    Leave(Word);
  end;
  WriteLn('saved ', ExtractFileName(Output));
end;

procedure Table(const Document: string);
var
  Word: TZORBWord;
  Row, Text: string;
  Cell: Integer;
begin
  Word := Opened(Document, False);
  try
    Require(Word.Search('Article') and Word.InTable, 'the document has no price table');
    while Word.InTable do
    begin
      Row := '';
      for Cell := 1 to Word.CellCount do
      begin
        { A cell's text ends in its end mark, and holds paragraph marks in between. }
        Text := StringReplace(Word.CellText(Cell), #13#7, '', []);
        if Cell > 1 then Row := Row + ' | ';
        Row := Row + StringReplace(Text, #13, ' ', [rfReplaceAll]);
      end;
      WriteLn(Row);
      { Behind a row that is selected as a whole lies the next one, or the text after the table. }
      Word.SelectRow;
      Word.CursorRight(1);
    end;
  finally
    Leave(Word);
  end;
end;

procedure Appointments(const Day: string);
var
  Outlook: TZORBOutlook;
  Lines: TStringList;
  Found: Boolean;
  Line: string;

  { Dates and times read with the separators of the user's settings: only the digits are sure. }
  function StartDay: string;
  begin
    Result := Outlook.GetAppointmentProperty(AppointmentKeyStartDate);
    Result := Copy(Result, 7, 4) + '-' + Copy(Result, 4, 2) + '-' + Copy(Result, 1, 2);
  end;

  function StartTime: string;
  begin
    Result := Outlook.GetAppointmentProperty(AppointmentKeyStartTime);
    Result := Copy(Result, 1, 2) + ':' + Copy(Result, 4, 2);
  end;

begin
  Outlook := TZORBOutlook.Create;
  { A series is one item, which begins when the series does. }
  Require(Outlook.StartOutlook and Outlook.InitItems(EntryTypeAppointment, '[Start] <= ''' + Day + ' 23:59'' AND ([Start] >= '''
    + Day + ' 00:00'' OR [IsRecurring] = True)'), Outlook.GetLastErrorDescription);
  Lines := TStringList.Create;
  try
    Found := Outlook.GetFirstItem(EntryTypeAppointment);
    while Found do
    begin
      { An occurrence that was moved may answer to the day that it had. }
      if (Outlook.GetAppointmentProperty(AppointmentKeyIsRecurring) <> 'True')
        or Outlook.GetAppointmentInstance(Day + ' ' + StartTime) then
        if StartDay = Day then Lines.Add(StartTime + ' ' + Outlook.GetAppointmentProperty(AppointmentKeySubject));
      Found := Outlook.GetNextItem(EntryTypeAppointment);
    end;
    Lines.Sort;
    for Line in Lines do WriteLn(Line);
  finally
    Lines.Free;
  end;
end;

begin
  try
    if (ParamStr(1) = 'letter') and (ParamCount = 4) then
      { Word has a current folder of its own. }
      Letter(ExpandFileName(ParamStr(2)), ExpandFileName(ParamStr(3)), ParamStr(4))
    else if (ParamStr(1) = 'table') and (ParamCount = 2) then
      Table(ExpandFileName(ParamStr(2)))
    else if (ParamStr(1) = 'appointments') and (ParamCount = 1) then
      Appointments(FormatDateTime('yyyy"-"mm"-"dd', Date + 1))
    else if (ParamStr(1) = 'appointments') and (ParamCount = 2) then
      Appointments(ParamStr(2))
    else
      raise Exception.Create('usage: Jobs letter TEMPLATE OUTPUT NAME | table DOCUMENT | appointments [DAY]');
  except
    on Failure: Exception do
    begin
      WriteLn(ErrOutput, Failure.Message);
      ExitCode := 1;
    end;
  end;
end.
