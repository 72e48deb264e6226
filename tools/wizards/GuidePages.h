// What stands on the pages of the forms that guide a beginner: their words, and the controls among them.
#pragma once

#include <span>
#include <string_view>

namespace tarvik::tables {

/// A paragraph, a control, or a control with the words that name it.
struct GuideRow {
  std::string_view text = {};
  std::string_view control =
      {};                ///< one of the form's, as "Text1(0)"; several, apart by blanks, side by side
  bool example = false;  ///< the text is a line of a file
};

struct GuidePage {
  std::string_view heading;
  std::span<const GuideRow> rows;
};

inline constexpr GuideRow kMacroPage0[] = {
    {.text = "Welcome! OK, we're going to go about creating a macro file for a game, step by step. I'm going "
             "to assume you're an almost total beginner, so don't worry, we'll take this slowly. We're not "
             "going to do anything advanced here, like using RAW codes or anything, we're just going to "
             "produce a macro file you can use to learn some of the basics on."},
    {.text = "Click on the button below to create a brand new, empty macro file that we can have a play "
             "around with. And then save the file with a name (8 characters maximum please). When you've "
             "done that, press the Next button down the bottom."},
    {.text = "Create a new macro file by pressing this button here."},
    {.control = "Command1(0)"},
};
inline constexpr GuideRow kMacroPage1[] = {
    {.text = "Well, the first thing we're going to put in is a title for the file. It's not necessary, but "
             "when you've got loads of these files around, it really helps having some sort of description "
             "about the particular macro file - what game it's for, who it's been created by etc. etc. Press "
             "the button below to bring up the Title window, and then fill out the text boxes, and hit the "
             "OK button on the Title window."},
    {.text = "Insert a title by pressing this button here"},
    {.control = "Command1(1)"},
    {.text = "When you've done that, press the Next button down the bottom."},
};
inline constexpr GuideRow kMacroPage2[] = {
    {.text = "What we need to do now is to create the macros, and group them together under headings that "
             "best describe what they do. So now what you need is your game's manual, or more specifically, "
             "their information on what keys do what in your game."},
    {.text = "Let's say for example that you've got a game that's a flight simulator, such as EF2000, Jane's "
             "F15, F22 ADF etc. etc. If you have a look at their keyboard layouts or the keyboard reference "
             "cards they give you, you'll see that there's a hell of a lot of keys or combinations of keys "
             "you can press to get your aircraft to do wondrous things, or to radio others out there in the "
             "big blue younder, etc. etc."},
    {.text = "Click on the Next button below"},
};
inline constexpr GuideRow kMacroPage3[] = {
    {.text = "Now a lot of these functions can be grouped together logically. So, several may affect where "
             "you look, or what weapons you've selected etc. So suitable headings might be: Views, Weapons, "
             "Radio and Communications, Wingmen commands, Shit I'm in trouble etc. etc."},
    {.text = "So the first thing you need to think about is what headings you want for your macros. Once "
             "you've got those pretty much sorted, let's go on and have a chat about what macros are and how "
             "to create them."},
    {.text = "Click on the Next button below when you've decided."},
};
inline constexpr GuideRow kMacroPage4[] = {
    {.text = "A macro is a name you give to help you remember what a key or a combination of keys does. So "
             "for example, if you have to press the 'g' key to get your undercarriage to go up and down then "
             "a suitable macro might look like this:"},
    {.text = "Undercarriage = g", .example = true},
    {.text =
         "Remember: all the joystick does via its buttons and hats is to fool the computer into believing "
         "it's a keyboard. So if you assigned the 'Undercarriage' macro to one of your joystick's buttons or "
         "hats, all it does when you press that button or hat is to send the key 'g' to the computer. The "
         "computer, being stupid, just thinks that you've pressed 'g' on your keyboard."},
    {.text = "Click on the Next button below to continue"},
};
inline constexpr GuideRow kMacroPage5[] = {
    {.text = "Now that was an easy example, and most of your macros will look exactly like that example. "
             "Great. Nice and simple. However, some keys have their own Thrustmaster syntax. Have I lost "
             "you? Don't worry, let me explain. On the top of your keyboard, you've got the numbers 1 to 0. "
             "And on your numerical keypad, you've also go the numbers 1 to 0. Now if you're using Notepad, "
             "you can press the number 1 key on the top of your keyboard, or you could press the number 1 on "
             "your numerical keypad. And both result in the number 1 being typed in Notepad."},
    {.text = "Click on the Next button below to see where I'm going with this one, or better still, have a "
             "beer, and then press the Next button."},
};
inline constexpr GuideRow kMacroPage6[] = {
    {.text = "But in a lot of games, pressing the '1' on the numerical keypad does something different to "
             "pressing the '1' on the top of the keyboard. Eek ! So how do we go about telling the computer "
             "(remember it's stupid) that we've actually physically pressed a different key?"},
    {.text = "Well the answer lies in the fact that Thrustmaster has different syntax to distinguish the "
             "keys from each other. The number 1 on the top of your keyboard is just that - '1', but on the "
             "numeric keypad, it is KP1 (ie. KeyPad 1 key). So now you could set up 2 different macros that "
             "look like this:"},
    {.text = "Click on the Next button below to see these 2 different macros."},
};
inline constexpr GuideRow kMacroPage7[] = {
    {.text = "LookLeft = 1", .example = true},
    {.text = "ShowMap = KP1", .example = true},
    {.text = "There are lots of these syntax codes you need to know. For example, if you wanted to get a "
             "character that was generated when you pressed the shift key, then your macro would look like "
             "this:"},
    {.text = "RadarRangeDown = SHF 9", .example = true},
    {.text = "which would generate the '(' key. Now in reality, you can often get away with just using the "
             "shifted key instead: F instead of SHF f, but don't! I won't go into it now but there are good "
             "reasons why you shouldn't in some cases."},
    {.text = "Click on the Next button below"},
};
inline constexpr GuideRow kMacroPage8[] = {
    {.text = "Well thankfully you don't need to, because Tarvik will tell you when you use Pimlet - the "
             "Keyboard and RAW code generator. Let's take a look at Pimlet now, because once we know how to "
             "use Pimlet to tell us what the correct syntax is, then we can at last go on and finish "
             "creating the macro file. Press the Pimlet button below to show Pimlet (he's a handsome devil "
             "isn't he?!) and I'll then introduce you."},
    {.text = "Show Pimlet by pressing this button here"},
    {.control = "Command1(2)"},
    {.text = "Click on the Next button below"},
};
inline constexpr GuideRow kMacroPage9[] = {
    {.text = "Now I know Pimlet looks daunting, but at this stage, there's only one part you really need to "
             "look at, and that's the textbox on the left that says: Thrustmaster Syntax. Now press some "
             "keys on the keyboard on Pimlet. See how the syntax changes when you press the numeric keypads, "
             "or say the left shift key compared to the right shift key."},
    {.text = "If you want to generate a shifted keyboard, press the Shift held area - it goes orange to show "
             "that it's shifted. Now look at the syntax changes. Got the idea? Good. Have a good play. Note "
             "that you can copy the Syntax by pressing the copy button to the right of the text area, or "
             "press the right hand mouse button to get a menu up."},
    {.text = "Click on the Next button below"},
};
inline constexpr GuideRow kMacroPage10[] = {
    {.text = "Right - this is how we're going to create your macro file. I'm going to ask you to create a "
             "heading - eg. Views. Then I'm going to ask you to put underneath this heading all those macros "
             "that are associated with that heading. Then I'm going to ask you for another heading, and then "
             "the macros for that heading, and so on and so on. "},
    {.text =
         "And then when you've got them all in there, you can press the Finish button below because you'll "
         "have finished and successfully created a macro file. You see, it isn't difficult at all."},
    {.text = "Click on the Next button below to get going"},
};
inline constexpr GuideRow kMacroPage11[] = {
    {.text = "OK - click on the Insert Heading button or select a heading from the list and double click it "
             "to create it."},
    {.control = "List1"},
    {.text = "Insert a macro heading by pressing this button"},
    {.control = "Command1(3)"},
    {.text = "When you've created it, click the Next button to start inserting macros under that heading."},
};
inline constexpr GuideRow kMacroPage12[] = {
    {.text = "Name of macro", .control = "Text1(0)"},
    {.text = "Keys it generates", .control = "Text1(1)"},
    {.control = "Label1(38)"},
    {.control = "Command1(4) Command1(5)"},
    {.control = "Command1(6)"},
    {.text = "Press the back button to add a new heading for more macros, click the Finish button if your "
             "Macro file is finished"},
};
inline constexpr GuideRow kMacroPage13[] = {
    {.text = "You've successfully created a macro file - pretty easy really isn't it. Well, that's half the "
             "battle, all we have to do now is to assign these macros to your joystick buttons and hats and "
             "there you have it! You're a Thrustmaster programmer !!!"},
    {.text = "OK, well done. Now save the file by pressing this button."},
    {.control = "Command1(7)"},
    {.text = "And now, let's transfer these macros into the macro list in the Editor, so that we can create "
             "a joystick file. Press this button."},
    {.control = "Command1(8)"},
    {.text = "Phew, I'm exhausted after all that. Get me out of here !!"},
};
inline constexpr GuidePage kMacroPages[] = {
    {"Hi there buddy.", kMacroPage0},
    {"Right - we're off!", kMacroPage1},
    {"Now let's just have a little chat ....", kMacroPage2},
    {"Let's think about macro headings first ...", kMacroPage3},
    {"Now a chat about macros ...", kMacroPage4},
    {"Using the correct key syntax in macros", kMacroPage5},
    {"So - about this number 1 on my keyboard", kMacroPage6},
    {"Thrustmaster syntax continued ...", kMacroPage7},
    {"So how do I remember all of these syntax thangs, huh?!!", kMacroPage8},
    {"Introducing Pimlet", kMacroPage9},
    {"Now we're just about ready to complete the macro file", kMacroPage10},
    {"Please give me a heading ...", kMacroPage11},
    {"Let's add the macros under this heading then", kMacroPage12},
    {"Congratulations !!!", kMacroPage13},
};

inline constexpr GuideRow kJoystickPage0[] = {
    {.text =
         "Hi there buddy. Right, well, we're going to go about creating a joystick file. A joystick file "
         "tells your joystick what buttons do what when you're playing your game. I'm going to assume you're "
         "practically a beginner, so I'm going to talk you through this step by step. We're not going to "
         "produce a complicated, advanced file - not yet - just something to learn the basics on first."},
    {.text = "The first thing we're going to need is a macro file. What, have I lost you already? If that's "
             "the case, then don't worry. To understand the basics of macros, leave this wizard and use the "
             "macro wizard to help you create one from scratch. Press the cancel button, and go to the Macro "
             "wizard now."},
    {.text = "If you're still with me, then I'm going to assume you know about macros and macro files, so "
             "open up a macro file for a game that you want to create a joystick file for. Press the button "
             "below ..."},
    {.text = "Press this button here to open up a macro file that your new joystick file should use."},
    {.control = "BTNinFrame(0)"},
    {.text = "Press the Next button when you've done that"},
};
inline constexpr GuideRow kJoystickPage1[] = {
    {.text =
         "First things first then, let's create a new blank joystick file. Hit this button here to do this."},
    {.control = "BTNinFrame(1)"},
    {.text = "And now, we'll save the joystick file (max 8 letter name and no spaces please). Yes, I know "
             "there's nothing in there at the moment, but it's always a very good idea from the word go. "
             "Press this button now."},
    {.control = "BTNinFrame(2)"},
    {.text = "Now Tarvik really does try to make life easy for you when it comes to developing a joystick "
             "file, as there's so many tools in it you can use. I'm going to introduce you to the Composer "
             "soon - a very powerful and easy tool to use. But first, let's remind ourselves of the basic "
             "principles of how a joystick file works in conjunction with its macro file."},
    {.text = "Grab a coffee, get comfortable and then press the Next button when you're ready to continue."},
};
inline constexpr GuideRow kJoystickPage2[] = {
    {.text = "Let's remember the concept behind developing joystick files. The hats and buttons on the "
             "joystick send characters to your game, in exactly the same way as if you were pressing keys on "
             "your keyboard. This is why your keyboard is plugged into your joystick, and not directly to "
             "the computer. Thus the computer can't tell whether the character it sees came from you "
             "pressing a key on your keyboard, or a button/hat on your joystick."},
    {.text = "In the joystick file, we decide what keys should be sent when we press the different buttons "
             "and hats. To help us remember what these keys do, we give them a macro name, and store their "
             "definitions in the macro file. We then assign these macros to the various hats and buttons in "
             "the joystick file. Let's look at an example - it's the easiest way to understand what I'm "
             "talking about."},
    {.text = "Press the Next button when you're ready to continue."},
};
inline constexpr GuideRow kJoystickPage3[] = {
    {.text = "Let's say that we have the following button definition in our joystick file ..."},
    {.text = "BTN S1  Autopilot", .example = true},
    {.text = "And in our macro file, we have the following macro definition"},
    {.text = "Autopilot = a", .example = true},
    {.text = "Now the BTN statement identifies the button (or hat) on your joystick that you want to press "
             "to turn on the autopilot in your flight sim. In this case, it's the button known as S1. We "
             "could easily have assigned it to a hat (let's say when we push Hat1 Up) as follows..."},
    {.text = "BTN H1U  Autopilot", .example = true},
    {.text =
         "When we download our joystick file to our joystick, it then makes the joystick generate an \"a\" "
         "key when the button S1 is pressed as in the first example, or when Hat 1 is moved up as in the "
         "second example. Note how it converts the Autopilot macro to the key \"a\" by looking in the macro "
         "file for what key or keys should be sent to the game when you want to use the Autopilot."},
    {.text = "Press the Next button when you're ready to continue."},
};
inline constexpr GuideRow kJoystickPage4[] = {
    {.text =
         "Can you see now how the joystick file works with the macro file? Once you've got all your macros "
         "set up in your macro file, then you'll never need to remember what keys do what in a game. In fact "
         "you'll forget. If you don't believe me, take an avid Thrustmaster user, and then take away his "
         "joystick and tell him to fly his plane - he'll be completely lost - I know I would be !!"},
    {.text =
         "So, most of the guts of a joystick file contains lots of BTN statements with their associated "
         "macros. So if you've understood this principle, and you've used the macro wizard so you know all "
         "about macro files, then you're easily 90% of the way there. There's nothing hard about developing "
         "joystick and macro files, so long as you've understood the basic principles behind them."},
    {.text =
         "There are other commands in a joystick file - I'm sure you've seen them in your manual and other "
         "people's files - like lots of \"/\" characters called Slash Modifiers, and some odd statements "
         "like MDEF and RATE. Let's ignore those for now, take a break, and introduce you to the Composer."},
    {.text = "Press the Next button when you're ready to continue."},
};
inline constexpr GuideRow kJoystickPage5[] = {
    {.text = "So obviously, our next step is to know which buttons and hats are what on your hardware. Even "
             "after all these years, I have them printed out on my wall in front of my computer - that's "
             "pretty sad isn't it! But now I've got the Composer, I think they can come off!"},
    {.text = "Press the button here to show the Composer."},
    {.control = "BTNinFrame(3)"},
    {.text = "It takes a little while to pop up. Now you should be able to see a picture of your joystick, "
             "with all the hats and buttons labelled. If you move your mouse around over the Composer, "
             "various tooltips will appear telling you about what your mouse is over. Go on, give it a go. "
             "Really, there are 3 areas I want you to concentrate on. 1) The picture of your Joystick. 2) "
             "The list of macros on the right hand side. 3) The Return button in the middle."},
    {.text = "Let's see now just how easy it is to assign a macro to a button."},
    {.text = "Press the Next button when you're ready to continue."},
};
inline constexpr GuideRow kJoystickPage6[] = {
    {.text = "Let's just make sure first that your joystick file is the one you're looking at (by default it "
             "has a yellowish background). If you're looking at the macro file, click on the left hand tab "
             "in the Editor to show the joystick file. And then click in the joystick file at the beginning "
             "of a line. If you're confused, just press the button below to do all of this for you."},
    {.text = "I'm confused .... so press this button."},
    {.control = "BTNinFrame(4)"},
    {.text = "Right, we're there. We're going to now assign a macro to a joystick button. This is how we do "
             "it .... "},
    {.text = "1) We click on a joystick button - that button is inserted into the joystick file."},
    {.text = "2) We double click on a macro in the macro list - it is then assigned to the button (You can "
             "also use drag and drop or there's a menu on the right hand mouse button in the macro list.)"},
    {.text = "3) We click on the Return key to goto the next line to repeat the process."},
    {.text = "Give it a go and press the Next button when you're ready to continue."},
};
inline constexpr GuideRow kJoystickPage7[] = {
    {.text =
         "There - that was relatively painless wasn't it! OK - I'm going to introduce some of the other "
         "statements that you need to have in your joystick file. I'm not at this point going to introduce "
         "you to slash modifiers - I think that at a later date, I'll generate a separate wizard to teach "
         "you about those - you don't need them in a file but you'll certainly want them !"},
    {.text = "If you've used the macro wizard, then you'll know that it's a good idea to include a title at "
             "the beginning of your file, and so let's clear the joystick file of its contents and do this "
             "now. Press the title button here."},
    {.control = "BTNinFrame(5)"},
    {.text = "Now we need to tell the joystick file where it should get its macros from - ie. which macro "
             "file is it associated with. For this we use the MDEF statement, which stands for Macro "
             "Definitions File Name. For example, in my F22ADF.f22 joystick file, I use the macros from my "
             "macro file, F22ADF.m22. So in my joystick file, I have a line that says:"},
    {.text = "MDEF F22ADF", .example = true},
    {.text = "Notice that I don't put the .m22 on the ending. OK, press the Next button when you're ready to "
             "continue."},
};
inline constexpr GuideRow kJoystickPage8[] = {
    {.text = "Make sure that the insertion point (the flashing cursor) in your joystick file is underneath "
             "the title, on a spearate line, and at the beginning of that line. Now we'll use the Composer "
             "to insert the MDEF line for us. "},
    {.text = "Press the button to show the Composer and its USE tab."},
    {.control = "BTNinFrame(6)"},
    {.text = "At this point, if you have any other hardware you wanted to use, like a throttle, you could "
             "also insert one of the USE statements to tell the Joystick what's attached to it, but for now "
             "we won't - we'll stay with the joystick as it is."},
    {.text = "If you're using an F22 Pro joystick, the next statement you'll want in is a PortB1 IS TG1 "
             "statement, which tells the game to recognise the trigger as it would behave on any other "
             "joystick. I'm not going to explain this further here, so pop it in if you're using an F22 Pro "
             "on its own line, say underneath the MDEF line."},
    {.text = "Press this button ONCE only (and then wait), and I'll do it for you. Make sure you're on a "
             "blank line first!"},
    {.control = "BTNinFrame(7)"},
    {.text = "Press the Next button when you're ready to continue."},
};
inline constexpr GuideRow kJoystickPage9[] = {
    {.text = "The next statement we need to pop in is a RATE statement. A rate statement tells the joystick "
             "how quickly to send its \"key presses\" to your game. The value is very much dependent on the "
             "game in question and your hardware - you'll have to read the help file for more about this. "
             "But for now, we'll put in a value of 80 which'll work for you OK."},
    {.text = "Press the button to show the Composer and its USE tab, with the Rate highlighted. Press the "
             "Insert button on the Composer to insert the RATE statement."},
    {.control = "BTNinFrame(8)"},
    {.text = "Right that's it for all of the odd statements we need. Now all we have to do is to assign "
             "macros to buttons and then you'll have a completed joystick file. "},
    {.text =
         "Oh, one thing which I really should have mentioned earlier is this .... all major statements like "
         "BTN, RATE, MDEF, USE etc. must all start at the beginning of a new line. Just be aware of that."},
    {.text = "Press the Next button when you're ready to continue."},
};
inline constexpr GuideRow kJoystickPage10[] = {
    {.text = "OK - you've got all the information you need - you've got a framework of a joystick file to "
             "work in. All you need to do now is to have the Composer up, and start putting in BTN "
             "statements and then assign macros to those buttons. If you want to assign macros to a hat, "
             "then you'll notice that when you click on a hat in the composer, a menu will pop up asking you "
             "which direction you want the hat in for the macros you want to assign."},
    {.text = "What do I mean by that? Well, hats have 4 basic potions (although some have 8). That is up "
             "(U), down (D), left (L) and right (R). That's why you'll see on the menu that pops up the name "
             "of the Hat and its poition, ie H1U, H1D, H1L, H1R for Hat 1 (H1)."},
    {.text = "Right - you can press this Composer button here to bring the Composer back up, and then off "
             "you go. That's it from me - you're free to experiment and play around. Enjoy!"},
    {.control = "BTNinFrame(9)"},
    {.text = "And here's one final tip to really make your life easy - check out the Templates tab on the "
             "Composer - it's THE quickest way of developing files!"},
    {.text = "Press the Finished button and I'll go off and grab some lunch."},
};
inline constexpr GuidePage kJoystickPages[] = {
    {"Welcome to the joystick wizard", kJoystickPage0},
    {"Ok ...we're off ....", kJoystickPage1},
    {"A quick recap of the basics: how the joystick file and macro file work together", kJoystickPage2},
    {"A closer look at a button statement in the joystick file", kJoystickPage3},
    {"Continuing our look at BTN statements", kJoystickPage4},
    {"Introducing the Composer", kJoystickPage5},
    {"Using the Composer", kJoystickPage6},
    {"Other important statements you need in your joystick file", kJoystickPage7},
    {"So let's insert an MDEF line into your joystick file", kJoystickPage8},
    {"Introducing the RATE statement", kJoystickPage9},
    {"Right - it's all down to you now", kJoystickPage10},
};

inline constexpr GuideRow kSpeedyToolbox[] = {
    {.text = "Create new macro file", .control = "Command1(1)"},
    {.text = "Insert a title ", .control = "Command1(2)"},
    {.text = "Save macro file", .control = "Command1(7)"},
    {.text = "Update macros", .control = "Command1(8)"},
    {.text = "(Use this later - not now!)"},
};
inline constexpr GuideRow kSpeedyHeading[] = {
    {.text = "Insert macro heading", .control = "Command1(3)"},
    {.text = "Click on the Insert Heading button or select a heading from the list and double click it to "
             "create it."},
    {.control = "List1"},
};
inline constexpr GuideRow kSpeedyMacro[] = {
    {.text = "Name of macro", .control = "Text1(0)"},
    {.text = "Keys it generates", .control = "Text1(1)"},
    {.control = "Label1(38)"},
    {.control = "Command1(4) Command1(5)"},
    {.control = "Command1(6)"},
};
inline constexpr GuidePage kSpeedyPages[] = {
    {"Toolbox", kSpeedyToolbox},
    {"Macro heading", kSpeedyHeading},
    {"Create macro", kSpeedyMacro},
};

}  // namespace tarvik::tables
