// The desktop host's program.
#include "platform/Files.h"
#include "workbench/HostWindow.h"
#include "workbench/QtText.h"
#include "workbench/Theme.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

using namespace glotta;

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("glotta-workbench");
    QApplication::setApplicationVersion(GLOTTA_VERSION);
    QCommandLineParser parser;
    parser.setApplicationDescription("Opens a Delphi or C++Builder project with the TGlotta Expert.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument("project", "The project or project group to open.", "[PROJECT]");
    parser.addOption({"registry", "Keep the settings in this file.", "FILE"});
    parser.process(application);

    std::optional<std::filesystem::path> registry;
    if (parser.isSet("registry")) registry = PathFromText(S(parser.value("registry")));
    Workbench workbench(registry);
    ApplyTheme(workbench.Settings().ReadString({}, "Colors", Themes[0]));
    HostWindow window(workbench);
    window.Run([&] { workbench.LoadExpert(); });
    window.show();
    const QStringList projects = parser.positionalArguments();
    if (!projects.isEmpty())
        QTimer::singleShot(0, &window, [&] { window.Run([&] { window.OpenProject(S(projects.front())); }); });
    const int result = QApplication::exec();
    workbench.UnloadExpert();
    return result;
}
