// SPDX-License-Identifier: MIT
// Every setting that our templates have, once: what a template takes of them is in templates.mjs.
const text = (key, title, desc, value = '') => ({ type: 'pt_text', key, title, desc, value });
const number = (key, title, desc, value) => ({ type: 'pt_number', key, title, desc, value: String(value) });
const color = (key, title, desc, value) => ({ type: 'pt_color', key, title, desc, value });
const list = (key, title, desc, choices, value = choices[0]) => ({
  type: 'pt_list', key, title, desc, value, valueSource: choices.join(','),
});
const file = (key, title, desc, valueSource) => ({ type: 'pt_file', key, title, desc, value: '', valueSource });
const bool = (key, title, desc, value, aTitle) => ({ type: 'pt_bool', key, title, desc, value, aTitle });
const button = (key, title, desc) => bool(key, title, desc, 'YES', 'Visible');

const PAGE = [
  text('bookTitle', 'Title', 'Title in the tool bar. Left empty, the title of the HTML page is shown.'),
  number('pageWidth', 'Page width', 'Width of a page. It follows the imported document, and together with the height gives the shape of the pages where no picture tells it.', 960),
  number('pageHeight', 'Page height', 'Height of a page. It follows the imported document, and together with the width gives the shape of the pages where no picture tells it.', 1280),
  list('viewMode', 'Pages side by side', '"Double" shows two facing pages, "Single" one page at a time. "Auto" takes what fits the window better.', ['Auto', 'Single', 'Double']),
  bool('coverAlone', 'Cover', 'Where two pages are shown, the first page stands alone like the cover of a printed book. Switched off, pages 1 and 2 face each other.', 'YES', 'First page stands alone'),
  bool('hardCover', 'Hard cover', 'The first and the last leaf turn stiffly like boards. Switched off, they bend like the other leaves.', 'NO', 'Covers are stiff'),
  bool('rightToLeft', 'Reading direction', 'For books that are read from right to left: the first page is the rightmost one, and the left arrow goes forward.', 'NO', 'Right to left'),
  color('pageColor', 'Paper', 'Colour of the paper, seen around pages of another shape and until a page is loaded.', '0xffffff'),
  bool('pageEdges', 'Page edges', 'Shows the edges of the pages before and after the open ones at the sides of the book. A click on them jumps.', 'YES', 'Edges of the other pages'),
  bool('pageShadow', 'Shadow', 'Draws a soft shadow around the pages.', 'YES', 'Pages cast a shadow'),
];

const BACKGROUND = [
  color('backgroundColor', 'Colour', 'Colour behind the pages. A background image lies over it.', '0xe9e7e2'),
  file('bgImageURL', 'Image', 'Picture or texture behind the pages.', 'Images|*.jpg;*.jpeg;*.png;*.gif'),
  list('bgImagePosition', 'Image position', '"Tile" repeats the background image, "Fill" stretches it over the whole window and keeps its shape, "Center" shows it once in the middle.', ['Tile', 'Fill', 'Center']),
];

const TOOL_BAR = [
  bool('toolBarVisible', 'Tool bar', 'Shows the tool bar. Switched off, the buttons beside the pages remain.', 'YES', 'Visible'),
  color('toolBarColor', 'Colour', 'Colour of the tool bar, the panels and the buttons beside the pages.', '0xfbfaf8'),
  color('toolBarTextColor', 'Text colour', 'Colour of text and symbols on the tool bar, the panels and the buttons beside the pages.', '0x33332f'),
  button('viewModeVisible', 'Pages side by side', 'Button that changes between one page at a time, two, and other pairs of pages.'),
  button('fullScreenButtonVisible', 'Full screen', 'Button that fills the whole screen with the book, in browsers that can do so.'),
  button('printVisible', 'Print', 'Button that prints the pages that the reader chooses.'),
];

const NAVIGATION = [
  button('turnButtonsVisible', 'Turn buttons', 'Buttons beside the pages that turn forward and back.'),
  button('pageFieldVisible', 'Page field', 'Field that shows where the reader is, and takes a page number or a page label to go there.'),
  button('sliderVisible', 'Slider', 'Slider below the pages that runs through the whole book.'),
  button('thumbnailsVisible', 'Thumbnails', 'Panel with small pictures of all pages.'),
  button('contentsVisible', 'Contents', "Panel with the document's bookmarks. A document without bookmarks has no such button."),
  bool('keyboardControl', 'Keyboard', 'The arrow keys, Page up, Page down, Home and End turn pages, and other keys search and zoom; the question mark shows them all.', 'YES', 'Keys work'),
  bool('wheelTurns', 'Mouse wheel', 'The mouse wheel turns pages. Zooming with Ctrl and the wheel stays possible when it is switched off.', 'YES', 'Wheel turns pages'),
  number('turnDuration', 'Turn duration', 'How long a page takes to turn, in milliseconds. Pages of readers who ask their system for less motion fade instead.', 800),
  bool('rememberLastPage', 'Last page', 'Opens the book again at the page that was read last in the same browser.', 'YES', 'Is remembered'),
  button('autoTurnVisible', 'Automatic turning', 'Button that makes the pages turn by themselves until it is pressed again.'),
  number('autoTurnSeconds', 'Turns every', 'How long a page stays when pages turn by themselves, in seconds.', 6),
];

const SOUND = [
  bool('turnSound', 'Sound', 'A rustle of paper when a page turns, from the start. Browsers keep silent until the reader has touched the page.', 'NO', 'Pages rustle'),
  button('soundVisible', 'Sound button', 'Button that switches the sound of turning pages on and off.'),
];

const LANGUAGES = ['Browser', 'English', 'German', 'French', 'Spanish', 'Chinese', 'Japanese', 'Arabic'];

const LANGUAGE = [
  list('languageSetting', 'Language', 'Language of buttons and messages; Chinese is simplified Chinese. "Browser" follows the language of the reader\'s browser.', LANGUAGES),
];

const LOGO_AND_LINKS = [
  file('LogoFile', 'Logo', 'Picture shown at the start of the tool bar, scaled to its height.', 'Images|*.jpg;*.png;*.bmp;*.gif'),
  text('appLogoLinkURL', 'Logo link', 'Web address that a click on the logo opens.'),
  color('linkColor', 'Link colour', 'Colour that marks, on the pages, the link that the pointer or the keyboard is on.', '0x2f7d4f'),
  list('OpenWindow', 'Open web links in', '"Blank" opens web links and the logo link in a new window, "Self" in the window of the book.', ['Blank', 'Self']),
];

const SHARING = [
  button('shareVisible', 'Share', 'Panel with the address of the page, and the lines that embed the book in another web page.'),
  text('shareURL', 'Address', 'Web address of the book for sharing and embedding. Left empty, the address at which it is read.'),
];

const READING = [
  bool('readerData', 'Reader data', 'Gives the reader the page list, the links, the contents and the text of the document. Switched off, the pages are plain pictures, and only JPEG pictures of pages that count from 1 without a gap are found.', 'YES', 'Links and text'),
  button('searchVisible', 'Search', 'Panel that finds words in the text of the document.'),
  button('textViewVisible', 'Text view', 'Button that shows the text of the document without its pages.'),
  button('motionVisible', 'Less motion', 'Switch that lets pages fade instead of turning, on from the start for readers who ask their system for less motion.'),
  button('helpVisible', 'Keys', 'Button that shows which keys do what. Where keys do nothing there is no such button.'),
  button('zoomVisible', 'Zoom', 'Buttons that enlarge the pages. Pinching and double tapping stay possible when it is switched off.'),
];

const SLIDES = [
  list('slideEffect', 'Change of pages', '"Slide" moves the next page in from the side, "Fade" lets it appear, "None" shows it at once.', ['Slide', 'Fade', 'None']),
  button('dotsVisible', 'Dots', 'Dots below the pages, one for each; of many pages, those around the open one. A click on a dot goes there.'),
];

const READING_WIDTH = [
  number('readingWidth', 'Reading width', 'How wide a page is at most, in pixels of the screen, so that lines stay easy to read in a wide window. With 0 a page is as wide as the window.', 900),
];

const GROUPS = [
  ['bookGroup', 'Page', 'What the pages are and how they are shown.', PAGE],
  ['columnGroup', 'Column', 'How the pages lie below each other.', READING_WIDTH],
  ['slideGroup', 'Slides', 'How one page follows the other.', SLIDES],
  ['backgroundGroup', 'Background', 'What lies behind the pages.', BACKGROUND],
  ['toolBarGroup', 'Tool bar', 'The bar above the pages with the title and the buttons.', TOOL_BAR],
  ['navigationGroup', 'Navigation', 'How readers find their way through the book.', NAVIGATION],
  ['soundGroup', 'Sound', 'What is heard.', SOUND],
  ['languageGroup', 'Language', 'Language of what is not the document.', LANGUAGE],
  ['logoGroup', 'Logo and links', 'Your logo in the tool bar, and where links lead.', LOGO_AND_LINKS],
  ['sharingGroup', 'Sharing', 'How readers pass the book on.', SHARING],
  ['readingGroup', 'Reading aids', 'What helps readers with the text of the pages.', READING],
];

/** The tree of a template that leaves out the keys `without`, and groups with nothing left; `changes` has by key what differs. */
export function propertyTree({ without, changes = {} }) {
  const groups = GROUPS.map(([key, title, desc, members]) => ({
    type: 'pt_composite', key, title, desc, value: '',
    children: members.filter((member) => !without.includes(member.key)).map((member) => ({ ...member, ...changes[member.key] })),
  }));
  return groups.filter(({ children }) => children.length > 0);
}
