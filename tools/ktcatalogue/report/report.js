'use strict';
// Filters and sorts the table of articles; what is shown stands in the address.
(function () {
    const get = id => document.getElementById(id);
    const form = get('filter');
    const query = get('query');
    const chosenClass = get('class');
    const found = get('found');
    const changed = get('changed');
    const status = get('status');
    const body = get('table').tBodies[0];
    const rows = Array.from(body.rows);
    const buttons = Array.from(get('table').querySelectorAll('thead button'));
    const collator = new Intl.Collator(document.documentElement.lang, {numeric: true});
    const texts = rows.map(row => row.textContent.toLowerCase());
    const order = new Map(rows.map((row, index) => [row, index]));
    const state = {sort: '', descending: false};

    const anchorOf = row => row.cells[0].firstElementChild.hash.slice(1);
    const isArticle = name => /^a\d/.test(name);
    const words = () => query.value.toLowerCase().split(/\s+/).filter(word => word !== '');

    function filter() {
        const wanted = words();
        let count = 0;
        rows.forEach((row, index) => {
            const isShown = wanted.every(word => texts[index].includes(word))
                && (chosenClass.value === '' || row.dataset.class === chosenClass.value)
                && (!found.checked || 'found' in row.dataset)
                && (!changed || !changed.checked || 'changed' in row.dataset);
            count += isShown ? 1 : 0;
            if (row.hidden === isShown) {
                row.hidden = !isShown;
            }
            // While the page loads, the last articles are not there yet.
            const article = get(anchorOf(row));
            if (article && article.hidden === isShown) {
                article.hidden = !isShown;
            }
        });
        const text = status.dataset.text.replace('%1', count).replace('%2', rows.length);
        if (status.textContent !== text) {
            status.textContent = text;
        }
    }

    function sort() {
        const column = buttons.findIndex(button => button.dataset.sort === state.sort);
        buttons.forEach((button, index) => {
            const direction = index !== column ? 'none' : state.descending ? 'descending' : 'ascending';
            button.parentElement.setAttribute('aria-sort', direction);
        });
        const sign = state.descending ? -1 : 1;
        const byOrder = (a, b) => order.get(a) - order.get(b);
        const compare = (a, b) => {
            const first = a.cells[column];
            const second = b.cells[column];
            const difference = 'value' in first.dataset
                ? first.dataset.value - second.dataset.value
                : collator.compare(first.textContent, second.textContent);
            return sign * difference || byOrder(a, b);
        };
        body.append(...rows.slice().sort(column < 0 ? byOrder : compare));
    }

    function clear() {
        query.value = '';
        chosenClass.value = '';
        found.checked = false;
        if (changed) {
            changed.checked = false;
        }
    }

    function remember() {
        const parts = new URLSearchParams();
        const add = (name, value) => value && parts.set(name, value);
        add('q', query.value);
        add('class', chosenClass.value);
        add('found', found.checked ? '1' : '');
        add('changed', changed && changed.checked ? '1' : '');
        add('sort', state.sort);
        add('down', state.descending ? '1' : '');
        const hash = parts.toString();
        history.replaceState(null, '', hash ? '#' + hash : location.pathname + location.search);
    }

    function restore() {
        const name = location.hash.slice(1);
        if (isArticle(name)) {
            const article = get(name);
            if (article && article.hidden) {
                clear();
                filter();
                article.scrollIntoView();
            }
            return;
        }
        if (name !== '' && !name.includes('=')) {
            return;
        }
        const parts = new URLSearchParams(name);
        query.value = parts.get('q') || '';
        chosenClass.value = parts.get('class') || '';
        found.checked = parts.has('found');
        if (changed) {
            changed.checked = parts.has('changed');
        }
        state.sort = parts.get('sort') || '';
        state.descending = parts.has('down');
        filter();
        sort();
    }

    form.addEventListener('submit', event => event.preventDefault());
    form.addEventListener('input', () => {
        filter();
        remember();
    });
    form.addEventListener('reset', event => {
        // The browser would do so after everybody has heard of it.
        event.preventDefault();
        clear();
        filter();
        remember();
    });
    buttons.forEach(button => button.addEventListener('click', () => {
        state.descending = state.sort === button.dataset.sort && !state.descending;
        state.sort = button.dataset.sort;
        sort();
        remember();
    }));
    addEventListener('hashchange', restore);
    document.addEventListener('DOMContentLoaded', () => filter());
    form.hidden = false;
    restore();
})();
