// The controls in VBA, early bound, in a new workbook or database of a program that this starts and ends itself.
var here = WScript.ScriptFullName.replace(/[^\\]*$/, "");
eval(new ActiveXObject("Scripting.FileSystemObject").OpenTextFile(here + "lib.js", 1).ReadAll());
var work = WScript.Arguments(0) + "\\";
var code =
    "Function host() As String\r\n Dim word As New ZORBOffice50.ZORBWord\r\n Dim outlook As New ZORBOffice50.ZORBOutlook\r\n" +
    " Dim writer As New ZORBOffice50.OpenWriter\r\n" +
    " host = \"ZORBWord \" & word.GetLastErrorNumber & \", ZORBOutlook \" & outlook.GetLastErrorNumber\r\n" +
    " host = host & \", OpenWriter \" & writer.GetLastErrorNumber\r\n" +
    "End Function\r\n";

function try_host(key, program, open, close) {
  if (!is_registered(program)) return skip(key, program + " is not registered");
  var application;
  try {
    application = new ActiveXObject(program);
    var project = open(application);
    project.References.AddFromGuid("{8698DD46-FA38-4FD0-8336-FA997FB10D92}", 1, 0);
    project.VBComponents.Add(1).CodeModule.AddFromString(code);
    expect(key, "it says", "ZORBWord 0, ZORBOutlook 0, OpenWriter 0", function() { return application.Run("host"); });
  } catch (failure) {
    skip(key, "no program could be put into it, perhaps because access to VBA projects is not trusted: " + code_of(failure));
  }
  attempt(function() { close(application); });
}

try_host(
    "host.vba.excel", "Excel.Application", function(excel) { return excel.Workbooks.Add().VBProject; },
    function(excel) {
      excel.DisplayAlerts = false;
      excel.Quit();
    });
var database = work + "host.accdb";
if (files.FileExists(database)) files.DeleteFile(database);
try_host(
    "host.vba.access", "Access.Application",
    function(access) {
      access.NewCurrentDatabase(database);
      return access.VBE.ActiveVBProject;
    },
    function(access) { access.Quit(2); });
WScript.Echo("end");
