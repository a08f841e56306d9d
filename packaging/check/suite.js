// OpenWriter with the office suite: a document is loaded and read, and closed by the suite's own means.
var here = WScript.ScriptFullName.replace(/[^\\]*$/, "");
eval(new ActiveXObject("Scripting.FileSystemObject").OpenTextFile(here + "lib.js", 1).ReadAll());
var bits = WScript.Arguments(1), key = "suite." + bits + ".";
var writer = new ActiveXObject("ZORBOffice.OpenWriter");

if (expect(key + "start", "Start", 1, function() { return writer.Start(false); })) {
  var path = (here + "letters.dotx").replace(/\\/g, "/").replace(/%/g, "%25").replace(/ /g, "%20").replace(/#/g, "%23");
  if (expect(key + "open", "OpenDoc of a path with /", 1, function() { return writer.OpenDoc(path); })) {
    tell(
        key + "read", "ReadText, its first characters",
        function() { return writer.ReadText(0, 0).replace(/\n/g, " ").substr(0, 60); });
    expect(
        key + "text", "ReadText has what is in the letter", true,
        function() { return /Harbour Office Supplies/.test(writer.ReadText(0, 0)); });
    expect(key + "close", "CloseDoc is silent", "undefined", function() { return writer.CloseDoc(0); });
    tell(key + "open.still", "the document is still open, and the suite itself closes it", function() {
      var desktop = new ActiveXObject("com.sun.star.ServiceManager").createInstance("com.sun.star.frame.Desktop");
      var document = desktop.getCurrentComponent();
      if (!document || !/<<Name>>/.test(document.getText().getString()))
        return "no, or another is the current one: close it by hand";
      document.close(true);
      return "closed";
    });
  }
}
WScript.Echo("end");
