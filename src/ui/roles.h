#pragma once

class QWidget;

namespace pinmora {

/// What the style sheet makes of a widget, beyond its class.
enum class Role {
    Heading,  ///< a label that names a part of a window
    Title,    ///< a label larger than its surroundings
    Question, ///< a label that heads a page of the wizard
    Quiet,    ///< a label of what matters less
    Strong,   ///< a label of what matters more
    Problem,  ///< a label that says what is wrong
    Link,     ///< a button that looks like a link
    Removal,  ///< the same, for what takes things away
    Flat,     ///< a button without a frame until the pointer is over it
    Plain,    ///< what a widget is by its class
    Default,  ///< the button that a person will want
    Strip,    ///< a frame that carries the heading of a list
    Footer,   ///< a frame that carries the buttons below a list
    Content,  ///< a frame on the ground of lists
    Framed,   ///< the same, with a line around it
    QuietBar, ///< the frame of messages that need no answer
    Dashed,   ///< a frame into which things may be dropped
    DropOver, ///< the same, while they are over it
    Card,     ///< a button as large as a card, with labels of its own
    Pages,    ///< a list of pages at the side of them
    Steps,    ///< the frame of the wizard's steps
    Step,     ///< a button in it
    StepDone, ///< the number of a step that has been reached
    StepNow,  ///< of the one that is seen
    StepAhead ///< of one that is still to come
};

void setRole(QWidget *widget, Role role);

} // namespace pinmora
