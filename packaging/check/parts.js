// The parts of the check that check.js runs itself.

var powershell = registry("HKLM\\SOFTWARE\\Microsoft\\PowerShell\\3\\PowerShellEngine\\PowerShellVersion");

function describe_system() {
  heading("What is here");
  var current = "HKLM\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\";
  say("told", "system.windows", "Windows",
      registry(current + "ProductName") + ", " + registry(current + "DisplayVersion") + " build " +
          registry(current + "CurrentBuild") + "." + registry(current + "UBR") + ", " + (has64 ? 64 : 32) + " bits");
  if (registry("HKLM\\SOFTWARE\\Wine\\") != "" || files.FileExists(windows + "System32\\winecfg.exe"))
    say("told", "system.wine", "this is Wine: what it answers is not Windows' answer");
  say("told", "system.settings", "the user's language, date and decimal sign",
      registry("HKCU\\Control Panel\\International\\LocaleName") + ", " +
          registry("HKCU\\Control Panel\\International\\sShortDate") + ", " +
          registry("HKCU\\Control Panel\\International\\sDecimal"));
  say("told", "system.host", "Windows' script host",
      WScript.Version + ", JScript " + ScriptEngineMajorVersion() + "." + ScriptEngineMinorVersion());
  var programs =
      ["Word.Application", "Outlook.Application", "Excel.Application", "Access.Application", "com.sun.star.ServiceManager"];
  for (var i = 0; i < programs.length; ++i)
    say("told", "system.program", programs[i],
        is_registered(programs[i]) ? registry("HKCR\\" + programs[i] + "\\CurVer\\") || "registered" : "not registered");
  var office = registry("HKLM\\SOFTWARE\\Microsoft\\Office\\ClickToRun\\Configuration\\VersionToReport");
  say("told", "system.office", "Office, as Click-to-Run has it",
      office == "" ? "none" :
                     office + " " + registry("HKLM\\SOFTWARE\\Microsoft\\Office\\ClickToRun\\Configuration\\Platform"));
  say("told", "system.net", ".NET Framework 4",
      registry("HKLM\\SOFTWARE\\Microsoft\\NET Framework Setup\\NDP\\v4\\Full\\Version") || "none");
  say("told", "system.powershell", "Windows PowerShell", powershell || "none");
}

// Which of the test programs may run: some look for the library where it is not to be, some write the machine's classes, and
// some stand in for the office programs, which they may only where there are none.
function why_not(needs) {
  if (/unregistered/.test(needs) && is_registered("ZORBOffice.ZORBWord")) return "ZORBOffice is registered for the machine";
  if (/machine/.test(needs) && !options["/machine"])
    return "it writes the machine's classes: /machine as an administrator runs it";
  var offices = ["Word.Application", "Outlook.Application", "com.sun.star.ServiceManager"];
  for (var i = 0; /no office/.test(needs) && i < offices.length; ++i)
    if (is_registered(offices[i])) return "it stands in for office programs, and " + offices[i] + " is here";
  return "";
}

function run_tests() {
  heading("The library's own tests");
  if (options["/notests"]) return skip("tests", "/notests was given");
  var programs = {
    surface_test: "",
    binder_test: "",
    control_test: "",
    manifest_test: "unregistered",
    registration_test: "unregistered, machine",
    life_test: "unregistered, no office",
    memory_test: "unregistered, machine, no office",
    word_test: "machine, no office",
    outlook_test: "machine, no office",
    sessions_test: "machine, no office"
  };
  for (var b = 0; b < bitnesses.length; ++b)
    for (var name in programs) {
      var key = "tests." + bitnesses[b] + "." + name, reason = why_not(programs[name]);
      if (reason) {
        skip(key, reason);
        continue;
      }
      var output = work + name + bitnesses[b] + ".out";
      var ended = run("\"" + here + "win" + bitnesses[b] + "\\" + name + ".exe\" --gtest_brief=1", output, 900);
      var lines = lines_of(output), failing = 0;
      for (var i = 0; i < lines.length; ++i)
        if (/^\[  FAILED  \] .*ms\)$/.test(lines[i])) {
          ++failing;
          say("DIFFERS", key, lines[i].replace(/^.*\] /, "").replace(/ \(.*$/, ""), first_message(lines, i), "it passes");
        }
      if (failing == 0) say(ended === 0 ? "ok" : "DIFFERS", key, "it ends with", ended, 0);
    }
}

// What was said last before the test was over.
function first_message(lines, end) {
  var begin = end;
  while (begin > 0 && !/^\[|: Failure$|error: /.test(lines[begin - 1])) --begin;
  var text = [];
  for (var i = begin; i < end && i < begin + 6; ++i) text.push(lines[i]);
  return text.join(" | ");
}

// For the user, or with /machine for all; and back.
function register(install) {
  heading(install ? "Registration" : "Taking it back");
  var root = options["/machine"] ? "HKLM" : "HKCU", all = true;
  for (var i = 0; i < bitnesses.length; ++i) {
    var bits = bitnesses[i], library = here + "win" + bits + "\\ZORBOffice.ocx";
    var command = systems[bits] + "regsvr32.exe /s " + (install ? "" : "/u ") + (options["/machine"] ? "" : "/n /i:user ") +
        "\"" + library + "\"";
    all = expect(
              "registration." + (install ? "" : "undo.") + bits,
              (options["/machine"] ? "for the machine" : "for the user") + ", regsvr32 ends with", 0,
              function() { return shell.Run(command, 0, true); }) &&
        all;
  }
  // This script sees its own bitness's entries.
  var own = here + "win" + own_bits + "\\ZORBOffice.ocx";
  expect(
      "registration." + (install ? "entries" : "undo.entries"), "the file of the class among those of " + root,
      install ? own : "", function() { return registry(root + "\\Software\\Classes" + CLASS); });
  return all;
}

// Hosts of several kinds, each in a process of its own; all say the same.
function run_hosts() {
  heading("Hosts");
  var said = "ZORBWord 0, ZORBOutlook 0, OpenWriter 0";
  for (var i = 0; i < bitnesses.length; ++i) {
    var bits = bitnesses[i];
    var power = systems[bits] + "WindowsPowerShell\\v1.0\\powershell.exe";
    var net = windows + "Microsoft.NET\\Framework" + (bits == 64 ? "64" : "") + "\\v4.0.30319\\csc.exe";
    one_host("host.vbscript." + bits, systems[bits] + "cscript.exe //nologo \"" + here + "host.vbs\"", said);
    one_host("host.jscript." + bits, systems[bits] + "cscript.exe //nologo \"" + here + "host.js\"", said);
    if (!files.FileExists(power) || powershell == "")
      skip("host.powershell." + bits, "there is no Windows PowerShell");
    else
      one_host(
          "host.powershell." + bits, power + " -NoProfile -ExecutionPolicy Bypass -File \"" + here + "host.ps1\"", said,
          "members 40, 31, 40");
    if (!files.FileExists(net)) {
      skip("host.net." + bits, "there is no compiler of .NET Framework 4");
      continue;
    }
    var program = work + "host" + bits + ".exe";
    run("\"" + net + "\" /nologo /platform:" + (bits == 64 ? "x64" : "x86") + " /out:\"" + program + "\" \"" + here +
            "host.cs\"",
        work + "csc.out", 60);
    one_host(
        "host.net." + bits, "\"" + program + "\" \"" + here + "win" + bits + "\\ZORBOffice.ocx\"", said,
        "importer ZORBWord 40, ZORBOutlook 31, OpenWriter 40");
  }
  run_part("vba.js", 32, 120);
}

// What it says first is known; what it counts then is its importer's own idea.
function one_host(key, command, said, counted) {
  var output = work + "host.out", ended = run(command, output, 60), lines = lines_of(output);
  function line(number) { return lines.length > number ? lines[number] : "nothing; it ended with " + ended; }
  expect(key, "it says", said, function() { return line(0); });
  if (counted) say("told", key + ".importer", "members", line(1), counted);
}

function run_offices() {
  var offices = [
    ["word.js", "Word.Application", "/noword"], ["outlook.js", "Outlook.Application", "/nooutlook"],
    ["suite.js", "com.sun.star.ServiceManager", "/nosuite"]
  ];
  for (var i = 0; i < offices.length; ++i) {
    var name = offices[i][0].replace(".js", "");
    heading("With " + offices[i][1]);
    if (options[offices[i][2]])
      skip(name, offices[i][2] + " was given");
    else if (!is_registered(offices[i][1]))
      skip(name, offices[i][1] + " is not registered");
    else
      for (var b = 0; b < bitnesses.length; ++b) run_part(offices[i][0], bitnesses[b], 600);
  }
}
