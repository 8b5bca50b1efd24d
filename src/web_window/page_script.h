#pragma once

namespace morpho {

// Runs beside each page, in a world of its own that the page's own scripts could not reach even if
// they ran. It selects the picture that a person clicks and tells that the selection may have
// changed by the console message kSelectionNotice.
inline constexpr char kSelectionNotice[] = "morpho: selection";

// Gives {url, image, text}: the address of the page, and the number of the selected picture among
// the page's, from 0 (-1 for none), or the selected text as HTML.
inline constexpr char kAskSelection[] = "morphoSelection()";
// Selects the next picture of the page, or the previous one.
inline constexpr char kNextPicture[] = "morphoStep(1)";
inline constexpr char kPreviousPicture[] = "morphoStep(-1)";

inline constexpr char kPageScript[] = R"js(
(() => {
  const shared = window.top;
  const imagesOf = page => page.body ? [...page.body.getElementsByTagName('img')] : [];

  const notify = () => console.log('morpho: selection');

  const unmark = () => {
    const mark = shared.morphoMark;
    if (!mark) return;
    if (mark.style === null) mark.image.removeAttribute('style');
    else mark.image.setAttribute('style', mark.style);
    shared.morphoMark = null;
  };

  const select = image => {
    if (shared.morphoMark && shared.morphoMark.image === image) return;
    unmark();
    for (const page of pages()) page.getSelection().removeAllRanges();
    shared.morphoMark = {image, style: image.getAttribute('style')};
    image.style.setProperty('outline', '3px dashed #2f6fc4', 'important');
    image.style.setProperty('outline-offset', '-1px', 'important');
    notify();
  };

  // The area of an image map stands for the picture.
  const imageAt = node => {
    if (node.tagName === 'IMG') return node;
    if (node.tagName !== 'AREA') return null;
    const map = node.closest('map');
    const uses = image => image.useMap.toLowerCase() === '#' + map.name.toLowerCase();
    return map ? imagesOf(document).find(uses) || null : null;
  };

  // The documents of this page and its frames, the outermost first.
  const pages = () => {
    const found = [];
    const visit = frame => {
      try { found.push(frame.document); } catch { return; }
      for (let i = 0; i < frame.frames.length; ++i) visit(frame.frames[i]);
    };
    visit(shared);
    return found;
  };

  document.addEventListener('mousedown', event => {
    if (imageAt(event.target) || !shared.morphoMark || event.button !== 0) return;
    unmark();
    notify();
  }, true);

  // A click selects a picture also where it is a link; a double click follows the link.
  document.addEventListener('click', event => {
    const image = imageAt(event.target);
    if (!image || !event.isTrusted || event.detail === 0) return;
    event.preventDefault();
    select(image);
  }, true);

  document.addEventListener('dblclick', event => {
    const link = event.target.closest('a[href], area[href]');
    if (imageAt(event.target) && link) link.click();
  }, true);

  document.addEventListener('contextmenu', event => {
    const image = imageAt(event.target);
    if (image) select(image);
  }, true);

  document.addEventListener('selectionchange', () => {
    const selection = document.getSelection();
    if (selection && !selection.isCollapsed) unmark();
    notify();
  });

  const htmlOf = selection => {
    const box = document.createElement('div');
    for (let i = 0; i < selection.rangeCount; ++i)
      box.append(selection.getRangeAt(i).cloneContents());
    return box.innerHTML;
  };

  window.morphoSelection = () => {
    const mark = shared.morphoMark;
    if (mark && mark.image.isConnected) {
      const page = mark.image.ownerDocument;
      return {url: page.URL, image: imagesOf(page).indexOf(mark.image), text: ''};
    }
    for (const page of pages()) {
      const selection = page.getSelection();
      if (selection && !selection.isCollapsed)
        return {url: page.URL, image: -1, text: htmlOf(selection)};
    }
    return {url: shared.document.URL, image: -1, text: ''};
  };

  window.morphoStep = step => {
    const images = pages().flatMap(imagesOf);
    if (images.length === 0) return;
    const mark = shared.morphoMark;
    const now = mark ? images.indexOf(mark.image) : step > 0 ? -1 : 0;
    const next = images[(now + step + images.length) % images.length];
    select(next);
    next.scrollIntoView({block: 'nearest', inline: 'nearest'});
  };
})();
)js";

}  // namespace morpho
