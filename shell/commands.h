// The commands of the menu: what each id between the first and the last does.

#ifndef VELNOR_SHELL_COMMANDS_H_
#define VELNOR_SHELL_COMMANDS_H_

namespace velnor {

class Program;

// Carries out the menu command `id`. Returns false, having done nothing, when `id` is no command:
// such an id belongs to a control.
bool RunCommand(Program& program, int id);

}  // namespace velnor

#endif  // VELNOR_SHELL_COMMANDS_H_
