// A form that holds ZORBWord and ZORBOutlook, late bound. Without arguments it waits for its buttons; with a job and its
// arguments, as letter TEMPLATE OUTPUT NAME, it does that job, writes the lines to the console too, and closes.
using System;
using System.Drawing;
using System.Linq;
using System.Reflection;
using System.Windows.Forms;

// AxHost holds any control by its class identifier: no interop assembly is made.
sealed class HeldControl : AxHost
{
    public HeldControl(string classIdentifier) : base(classIdentifier) { }

    // "dynamic" would be shorter, but knows no COM in .NET Core 3.1.
    public object Ask(string member, params object[] arguments)
    {
        object control = GetOcx();
        const BindingFlags asScriptsDo = BindingFlags.InvokeMethod | BindingFlags.GetProperty;
        return control.GetType().InvokeMember(member, asScriptsDo, null, control, arguments);
    }

    // The members answer with 1 or true.
    public bool Does(string member, params object[] arguments)
    {
        return Convert.ToBoolean(Ask(member, arguments));
    }
}

sealed class OfficeForm : Form
{
    readonly HeldControl word = new HeldControl("495CDEB3-7F1E-4663-9DB2-E33437412CE0");
    readonly HeldControl outlook = new HeldControl("A04BAF5A-D329-4C3A-A012-CFFA919D559F");
    readonly TextBox given = new TextBox { Multiline = true, Bounds = new Rectangle(8, 8, 440, 80) };
    readonly TextBox results = new TextBox { Multiline = true, ReadOnly = true, Bounds = new Rectangle(8, 140, 440, 180) };
    int exitCode;

    OfficeForm(string[] arguments)
    {
        Text = "ZORBOffice";
        ClientSize = new Size(456, 328);
        word.Bounds = new Rectangle(360, 98, 32, 32);
        outlook.Bounds = new Rectangle(400, 98, 32, 32);
        Controls.AddRange(new Control[] { given, results, word, outlook });
        var left = 8;
        foreach (var job in new[] { "letter", "table", "appointments" })
        {
            var button = new Button { Text = job, Bounds = new Rectangle(left, 100, 104, 28) };
            // The box takes one argument a line.
            button.Click += (sender, what) => Do(job, given.Lines);
            Controls.Add(button);
            left += 112;
        }
        Shown += (sender, what) =>
        {
            if (arguments.Length == 0) return;
            Do(arguments[0], arguments.Skip(1).ToArray());
            (exitCode == 0 ? Console.Out : Console.Error).WriteLine(results.Text);
            Close();
        };
    }

    void Do(string job, string[] arguments)
    {
        try
        {
            results.Lines = Jobs.Do(job, arguments, word, outlook);
        }
        catch (Exception failure)
        {
            results.Text = failure.GetBaseException().Message;
            exitCode = 1;
        }
    }

    [STAThread]
    static int Main(string[] arguments)
    {
        var form = new OfficeForm(arguments);
        Application.Run(form);
        return form.exitCode;
    }
}
