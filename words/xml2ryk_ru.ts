<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>Words</name>
    <message>
        <source>it is empty</source>
        <translation>он пуст</translation>
    </message>
    <message>
        <source>it is an HTML page</source>
        <translation>это страница HTML</translation>
    </message>
    <message>
        <source>it is no XML at all</source>
        <translation>это вообще не XML</translation>
    </message>
    <message>
        <source>it ends in the middle</source>
        <translation>он обрывается на середине</translation>
    </message>
    <message>
        <source>an end tag is not that of the element it stands in</source>
        <translation>закрывающий тег не от того элемента, в котором он стоит</translation>
    </message>
    <message>
        <source>an &quot;&amp;&quot; with no entity behind it; the plain character is written &quot;&amp;amp;&quot;</source>
        <translation>«&amp;», за которым нет сущности; сам знак пишется «&amp;amp;»</translation>
    </message>
    <message>
        <source>a broken tag, or a &quot;&lt;&quot; that begins none; the plain character is written &quot;&amp;lt;&quot;</source>
        <translation>испорченный тег или «&lt;», с которого тег не начинается; сам знак пишется «&amp;lt;»</translation>
    </message>
    <message>
        <source>something that no element may hold, such as &quot;]]&gt;&quot;</source>
        <translation>то, чего в элементе быть не может, например «]]&gt;»</translation>
    </message>
    <message>
        <source>a comment with &quot;--&quot; in it</source>
        <translation>комментарий, в котором стоит «--»</translation>
    </message>
    <message>
        <source>an XML declaration that is not at the very beginning</source>
        <translation>объявление XML стоит не в самом начале</translation>
    </message>
    <message>
        <source>a character that may not stand there</source>
        <translation>знак, которого здесь быть не может</translation>
    </message>
    <message>
        <source>an entity that holds itself</source>
        <translation>сущность, которая содержит саму себя</translation>
    </message>
    <message>
        <source>an entity of another file in an attribute</source>
        <translation>сущность из другого файла в атрибуте</translation>
    </message>
    <message>
        <source>a broken document type declaration</source>
        <translation>испорченное объявление типа документа</translation>
    </message>
    <message>
        <source>a broken XML declaration</source>
        <translation>испорченное объявление XML</translation>
    </message>
    <message>
        <source>elements are nested too deep</source>
        <translation>элементы вложены слишком глубоко</translation>
    </message>
    <message>
        <source>an element has too many attributes</source>
        <translation>у элемента слишком много атрибутов</translation>
    </message>
    <message>
        <source>there are too many brackets ahead of the root</source>
        <translation>перед корневым элементом слишком много скобок</translation>
    </message>
    <message>
        <source>it declares too many entities, or too long ones</source>
        <translation>в нём объявлено слишком много сущностей, или они слишком длинные</translation>
    </message>
    <message>
        <source>it declares a parameter entity</source>
        <translation>в нём объявлена параметрическая сущность</translation>
    </message>
    <message>
        <source>its entities stand for too much text</source>
        <translation>его сущности разворачиваются в слишком большой текст</translation>
    </message>
    <message>
        <source>it takes more memory than there is</source>
        <translation>на него не хватает памяти</translation>
    </message>
    <message>
        <source>the source can&apos;t be read</source>
        <translation>источник не читается</translation>
    </message>
    <message>
        <source>the source is no well-formed XML: %1</source>
        <translation>источник не является правильным XML: %1</translation>
    </message>
    <message>
        <source>no encoding is declared, and the source is not in UTF-8</source>
        <translation>кодировка не объявлена, а источник не в UTF-8</translation>
    </message>
    <message>
        <source>the declared encoding is %1, but the source is in another one</source>
        <translation>объявлена кодировка %1, но источник в другой</translation>
    </message>
    <message>
        <source>the declared encoding is %1, but the source is in %2</source>
        <translation>объявлена кодировка %1, но источник в %2</translation>
    </message>
    <message>
        <source>the source goes beyond a limit: %1</source>
        <translation>источник превышает ограничение: %1</translation>
    </message>
    <message>
        <source>the source is an HTML page, no trade data</source>
        <translation>источник — страница HTML, а не торговые данные</translation>
    </message>
    <message>
        <source>the source is no trade data: its root is &quot;%1&quot;</source>
        <translation>источник — не торговые данные: его корневой элемент — «%1»</translation>
    </message>
    <message>
        <source>the order line &quot;%1&quot; has no identifier, and is left out</source>
        <translation>у строки заказа «%1» нет идентификатора; строка пропущена</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no identifier, and is left out</source>
        <translation>у элемента «%1» нет идентификатора, он пропущен</translation>
    </message>
    <message>
        <source>the document has no lines, and the export ends at it</source>
        <translation>у документа нет строк; на нём выгрузка кончается</translation>
    </message>
    <message numerus="yes">
        <source>the document has no lines, and the export ends at it: %n document(s) behind it are lost</source>
        <translation>
            <numerusform>у документа нет строк; на нём выгрузка кончается, и за ним потерян %n документ</numerusform>
            <numerusform>у документа нет строк; на нём выгрузка кончается, и за ним потеряны %n документа</numerusform>
            <numerusform>у документа нет строк; на нём выгрузка кончается, и за ним потеряно %n документов</numerusform>
        </translation>
    </message>
    <message>
        <source>a group above the group &quot;%1&quot; is missing</source>
        <translation>у группы «%1» нет вышестоящей группы</translation>
    </message>
    <message>
        <source>there is no group &quot;%1&quot;</source>
        <translation>нет группы «%1»</translation>
    </message>
    <message>
        <source>the free text</source>
        <translation>свободный текст</translation>
    </message>
    <message>
        <source>the value of &quot;%1&quot;</source>
        <translation>значение «%1»</translation>
    </message>
    <message>
        <source>%1 has a line break</source>
        <translation>%1: есть перевод строки</translation>
    </message>
    <message>
        <source>%1 has the line &quot;%2&quot;, which looks like one of the exchange file</source>
        <translation>%1 — со строкой «%2», похожей на строку файла обмена</translation>
    </message>
    <message>
        <source>%1 has broken or control characters</source>
        <translation>%1 — с испорченными или управляющими знаками</translation>
    </message>
    <message>
        <source>there is nothing in the source to export</source>
        <translation>выгружать в источнике нечего</translation>
    </message>
    <message>
        <source>the source changed while it was read</source>
        <translation>источник изменился, пока его читали</translation>
    </message>
    <message>
        <source>the document has no partner with a code, and is left out</source>
        <translation>у документа нет контрагента с кодом; он пропущен</translation>
    </message>
    <message>
        <source>the document has no number, and only its partner is exported</source>
        <translation>у документа нет номера; выгружен только его контрагент</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a prefix, and is not known by this name</source>
        <translation>имя «%1» — с префиксом; под таким именем выгрузка его не знает</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands where no export looks for it, and is left out</source>
        <translation>«%1» стоит там, где выгрузка его не ищет, и пропущен</translation>
    </message>
    <message>
        <source>the partner &quot;%1&quot; has another role than the wanted one</source>
        <translation>у контрагента «%1» не та роль, которая нужна</translation>
    </message>
    <message>
        <source>the groups above the group &quot;%1&quot; lead back to one of them</source>
        <translation>группы над группой «%1» замыкаются в кольцо</translation>
    </message>
    <message>
        <source>it is in no group</source>
        <translation>нет группы</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>нет наименования</translation>
    </message>
    <message>
        <source>it has no price</source>
        <translation>нет цены</translation>
    </message>
    <message>
        <source>the price &quot;%1&quot; is no number</source>
        <translation>цена «%1» — не число</translation>
    </message>
    <message>
        <source>it has more prices than the exchange file holds</source>
        <translation>цен больше, чем вмещает файл обмена</translation>
    </message>
    <message>
        <source>another one in the same section has this code</source>
        <translation>в том же разделе этот код уже был</translation>
    </message>
    <message>
        <source>its code is empty</source>
        <translation>код пустой</translation>
    </message>
    <message>
        <source>it is sold out, and exported without unit and description</source>
        <translation>товар распродан; выгружен без единицы и описания</translation>
    </message>
    <message>
        <source>error</source>
        <translation>ошибка</translation>
    </message>
    <message>
        <source>loss</source>
        <translation>потеря</translation>
    </message>
    <message>
        <source>doubt</source>
        <translation>сомнение</translation>
    </message>
    <message numerus="yes">
        <source>%n good(s)</source>
        <translation>
            <numerusform>%n товар</numerusform>
            <numerusform>%n товара</numerusform>
            <numerusform>%n товаров</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n offer(s)</source>
        <translation>
            <numerusform>%n предложение</numerusform>
            <numerusform>%n предложения</numerusform>
            <numerusform>%n предложений</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s)</source>
        <translation>
            <numerusform>%n документ</numerusform>
            <numerusform>%n документа</numerusform>
            <numerusform>%n документов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n order line(s)</source>
        <translation>
            <numerusform>%n строка заказа</numerusform>
            <numerusform>%n строки заказов</numerusform>
            <numerusform>%n строк заказов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n partner(s) without an order</source>
        <translation>
            <numerusform>%n контрагент без заказа</numerusform>
            <numerusform>%n контрагента без заказа</numerusform>
            <numerusform>%n контрагентов без заказа</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>ничего</translation>
    </message>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n ошибка</numerusform>
            <numerusform>%n ошибки</numerusform>
            <numerusform>%n ошибок</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n loss(es)</source>
        <translation>
            <numerusform>%n потеря</numerusform>
            <numerusform>%n потери</numerusform>
            <numerusform>%n потерь</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n doubt(s)</source>
        <translation>
            <numerusform>%n сомнение</numerusform>
            <numerusform>%n сомнения</numerusform>
            <numerusform>%n сомнений</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no folder for the exchange file</source>
        <translation>нет папки для файла обмена</translation>
    </message>
    <message>
        <source>the destination is no ordinary file</source>
        <translation>файл назначения — не обычный файл</translation>
    </message>
    <message>
        <source>the destination is the source itself</source>
        <translation>файл назначения — сам источник</translation>
    </message>
    <message>
        <source>the old exchange file has other names, hard links, which would keep the old content</source>
        <translation>у прежнего файла обмена есть другие имена, жёсткие ссылки, под которыми осталось бы прежнее содержимое</translation>
    </message>
    <message>
        <source>the new exchange file can&apos;t get the owner, the group and the rights of the old one</source>
        <translation>новому файлу обмена не удаётся дать владельца, группу и права прежнего</translation>
    </message>
    <message>
        <source>another run is writing this exchange file</source>
        <translation>этот файл обмена записывает другой запуск</translation>
    </message>
    <message>
        <source>no new file can be created beside the destination</source>
        <translation>рядом с файлом назначения не удаётся создать новый файл</translation>
    </message>
    <message>
        <source>the new exchange file is not what was written into it</source>
        <translation>в новом файле обмена не то, что в него записано</translation>
    </message>
    <message>
        <source>the new exchange file may not have reached the disk</source>
        <translation>новый файл обмена, возможно, не попал на диск</translation>
    </message>
    <message>
        <source>the old exchange files can&apos;t be kept with numbers</source>
        <translation>прежние файлы обмена не удаётся сохранить с номерами</translation>
    </message>
    <message>
        <source>the new exchange file can&apos;t take the place of the old one</source>
        <translation>новый файл обмена не удаётся поставить на место прежнего</translation>
    </message>
    <message>
        <source>the time that a source may take is over</source>
        <translation>вышло время, отведённое на источник</translation>
    </message>
    <message>
        <source>the process that read the source died</source>
        <translation>процесс, который читал источник, аварийно завершился</translation>
    </message>
    <message>
        <source>no process could be started to read the source</source>
        <translation>не удалось запустить процесс для чтения источника</translation>
    </message>
    <message>
        <source>memory ran out</source>
        <translation>кончилась память</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation>такого файла или папки нет</translation>
    </message>
    <message>
        <source>there is no right to do so</source>
        <translation>на это нет прав</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>это папка</translation>
    </message>
    <message>
        <source>a part of the path is no folder</source>
        <translation>часть пути — не папка</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>диск заполнен</translation>
    </message>
    <message>
        <source>the disk space of this user is used up</source>
        <translation>место на диске, отведённое пользователю, кончилось</translation>
    </message>
    <message>
        <source>a file may not become so large</source>
        <translation>файл превысил бы допустимый размер</translation>
    </message>
    <message>
        <source>the disk is write-protected</source>
        <translation>диск защищён от записи</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>диск сообщает об ошибке</translation>
    </message>
    <message>
        <source>another program has it open</source>
        <translation>он открыт в другой программе</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>открыто слишком много файлов</translation>
    </message>
    <message>
        <source>all of every source gets across; an exchange file is whole, as far as it shows</source>
        <translation>из всех источников переходит всё; по файлу обмена не видно, что он оборван</translation>
    </message>
    <message>
        <source>wrong usage; nothing was done</source>
        <translation>неверный вызов; ничего не сделано</translation>
    </message>
    <message>
        <source>a file can&apos;t be read, or there is nothing to export; the old exchange file is kept</source>
        <translation>файл не читается, или выгружать нечего; прежний файл обмена оставлен</translation>
    </message>
    <message>
        <source>something is left out; an exchange file is not whole</source>
        <translation>что-то не перешло; файл обмена не цел</translation>
    </message>
    <message>
        <source>Ctrl-C or SIGTERM ended the run</source>
        <translation>работу оборвал Ctrl-C или SIGTERM</translation>
    </message>
    <message>
        <source>a folder of sources needs --into and a folder</source>
        <translation>для папки с источниками нужен --into с папкой</translation>
    </message>
    <message>
        <source>two sources have the destination %1</source>
        <translation>у двух источников один файл назначения %1</translation>
    </message>
    <message>
        <source>the log %1 is one of the other files</source>
        <translation>журнал %1 — один из остальных файлов</translation>
    </message>
    <message>
        <source>the log %1 can&apos;t be written</source>
        <translation>в журнал %1 не удаётся писать</translation>
    </message>
    <message>
        <source>the argument &quot;%1&quot; is no UTF-8</source>
        <translation>аргумент «%1» не в UTF-8</translation>
    </message>
    <message>
        <source>SOURCE...</source>
        <translation>ИСТОЧНИК...</translation>
    </message>
    <message>
        <source>tells what a conversion would leave out, and writes nothing</source>
        <translation>говорит, что пропало бы при преобразовании; ничего не записывает</translation>
    </message>
    <message>
        <source>SOURCE DESTINATION</source>
        <translation>ИСТОЧНИК ПРИЁМНИК</translation>
    </message>
    <message>
        <source>--into FOLDER SOURCE...</source>
        <translation>--into ПАПКА ИСТОЧНИК...</translation>
    </message>
    <message>
        <source>puts a whole exchange file in the place of the old one, or leaves that as it is</source>
        <translation>ставит на место прежнего файла обмена целый новый или оставляет прежний</translation>
    </message>
    <message>
        <source>EXCHANGE-FILE...</source>
        <translation>ФАЙЛ-ОБМЕНА...</translation>
    </message>
    <message>
        <source>tells whether an exchange file is whole</source>
        <translation>говорит, цел ли файл обмена</translation>
    </message>
    <message>
        <source>the documents are purchases, as in xml2ryk</source>
        <translation>документы — закупки, как в xml2ryk</translation>
    </message>
    <message>
        <source>one object a line for each source</source>
        <translation>по объекту JSON в строке на каждый источник</translation>
    </message>
    <message>
        <source>every finding, not the first ten of a kind</source>
        <translation>все замечания, а не первые десять каждого вида</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>sources at the same time; the number of cores if absent</source>
        <translation>сколько источников читать сразу; если нет — по числу ядер</translation>
    </message>
    <message>
        <source>SECONDS</source>
        <translation>СЕКУНДЫ</translation>
    </message>
    <message>
        <source>how long a source may take</source>
        <translation>сколько времени отводится на источник</translation>
    </message>
    <message>
        <source>a source of trade data with nothing in it is fine</source>
        <translation>источник, в котором ничего нет, — не ошибка</translation>
    </message>
    <message>
        <source>KIND</source>
        <translation>ВИД</translation>
    </message>
    <message>
        <source>this kind of loss counts as a doubt; repeatable</source>
        <translation>потери этого вида считать сомнениями; можно повторять</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>ПАПКА</translation>
    </message>
    <message>
        <source>where exchange files go, named like their sources with .txt</source>
        <translation>куда записывать файлы обмена; имена — как у источников, с .txt</translation>
    </message>
    <message>
        <source>how long to wait for another run&apos;s destination; 0 if absent</source>
        <translation>сколько ждать файл назначения, занятый другим запуском; если нет — 0</translation>
    </message>
    <message>
        <source>a loss keeps the old file</source>
        <translation>при потерях оставлять прежний файл</translation>
    </message>
    <message>
        <source>PERCENT</source>
        <translation>ПРОЦЕНТ</translation>
    </message>
    <message>
        <source>keeps the old file where goods or documents fell by more than this against it</source>
        <translation>оставлять прежний файл, если товаров или документов стало меньше, чем в нём, более чем на столько</translation>
    </message>
    <message>
        <source>the last N old files stay beside the new one, with numbers</source>
        <translation>N последних прежних файлов остаются рядом, с номерами</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ФАЙЛ</translation>
    </message>
    <message>
        <source>the counts are compared with this source</source>
        <translation>сравнить число блоков с этим источником</translation>
    </message>
    <message>
        <source>gets a line for each source behind those it has</source>
        <translation>дописывать сюда по строке на каждый источник</translation>
    </message>
    <message>
        <source>prints this, and does nothing else</source>
        <translation>вывести эту справку и больше ничего не делать</translation>
    </message>
    <message>
        <source>prints the version, and does nothing else</source>
        <translation>вывести версию и больше ничего не делать</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>не указана команда</translation>
    </message>
    <message>
        <source>there is no command %1</source>
        <translation>нет команды %1</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>нет параметра %1</translation>
    </message>
    <message>
        <source>the option %1 stands behind a command</source>
        <translation>параметр %1 пишется после команды</translation>
    </message>
    <message>
        <source>%1 has no option %2</source>
        <translation>у %1 нет параметра %2</translation>
    </message>
    <message>
        <source>the option %1 has no value</source>
        <translation>у параметра %1 нет значения</translation>
    </message>
    <message>
        <source>the option %1 lacks its value</source>
        <translation>после параметра %1 нужно значение</translation>
    </message>
    <message>
        <source>the option %1 can&apos;t be &quot;%2&quot;</source>
        <translation>параметр %1 не может быть «%2»</translation>
    </message>
    <message>
        <source>the name of a file is empty</source>
        <translation>имя файла пустое</translation>
    </message>
    <message>
        <source>the name of a file is missing</source>
        <translation>не указано имя файла</translation>
    </message>
    <message>
        <source>the destination is missing</source>
        <translation>не указан файл назначения</translation>
    </message>
    <message>
        <source>several sources need --into and a folder</source>
        <translation>для нескольких источников нужен --into с папкой</translation>
    </message>
    <message>
        <source>--source is for one exchange file</source>
        <translation>--source годится для одного файла обмена</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>ПАРАМЕТРЫ</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Вызов:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Параметры:</translation>
    </message>
    <message>
        <source>&quot;%1 --help&quot; tells more</source>
        <translation>подробнее: «%1 --help»</translation>
    </message>
    <message>
        <source>Exit codes, of several the gravest, which is 4, then 2, then 3:</source>
        <translation>Коды завершения; из нескольких — самый серьёзный: 4, затем 2, затем 3:</translation>
    </message>
    <message>
        <source>standard output can&apos;t be written</source>
        <translation>стандартный вывод не записывается</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>ОШИБКА</translation>
    </message>
    <message>
        <source>LOSS</source>
        <translation>ПОТЕРИ</translation>
    </message>
    <message>
        <source>NOT WRITTEN</source>
        <translation>НЕ ЗАПИСАНО</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>(here the start tag ends)</source>
        <translation>(здесь кончается открывающий тег)</translation>
    </message>
    <message>
        <source>this is no exchange file: its first line is another one</source>
        <translation>это не файл обмена: первая строка у него другая</translation>
    </message>
    <message>
        <source>the file ends in the middle of this line</source>
        <translation>файл обрывается посреди этой строки</translation>
    </message>
    <message>
        <source>the file ends inside the block that begins here</source>
        <translation>файл обрывается внутри блока, который начинается здесь</translation>
    </message>
    <message>
        <source>the file ends inside the order that begins here</source>
        <translation>файл обрывается внутри заказа, который начинается здесь</translation>
    </message>
    <message>
        <source>this line is in no block, or its block may not stand here</source>
        <translation>эта строка вне блоков, или её блоку здесь не место</translation>
    </message>
    <message>
        <source>this line has bytes that nobody writes into an exchange file</source>
        <translation>в этой строке байты, которых в файле обмена не бывает</translation>
    </message>
    <message>
        <source>the same as before</source>
        <translation>прежнее содержимое</translation>
    </message>
    <message numerus="yes">
        <source>%n more, which --all shows</source>
        <translation>
            <numerusform>ещё %n, см. --all</numerusform>
            <numerusform>ещё %n, см. --all</numerusform>
            <numerusform>ещё %n, см. --all</numerusform>
        </translation>
    </message>
    <message>
        <source>NOT WHOLE</source>
        <translation>НЕ ЦЕЛ</translation>
    </message>
    <message>
        <source>the file can&apos;t be read</source>
        <translation>файл не читается</translation>
    </message>
    <message>
        <source>of the source it should have %1</source>
        <translation>по источнику в нём должно быть: %1</translation>
    </message>
    <message>
        <source>the exchange file could not be written whole</source>
        <translation>файл обмена не удалось записать целиком</translation>
    </message>
    <message numerus="yes">
        <source>the old file is kept: it has %n good(s), the new one would have %1</source>
        <translation>
            <numerusform>прежний файл оставлен: в нём %n товар, в новом было бы %1</numerusform>
            <numerusform>прежний файл оставлен: в нём %n товара, в новом было бы %1</numerusform>
            <numerusform>прежний файл оставлен: в нём %n товаров, в новом было бы %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the old file is kept: it has %n document(s), the new one would have %1</source>
        <translation>
            <numerusform>прежний файл оставлен: в нём %n документ, в новом было бы %1</numerusform>
            <numerusform>прежний файл оставлен: в нём %n документа, в новом было бы %1</numerusform>
            <numerusform>прежний файл оставлен: в нём %n документов, в новом было бы %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the folder has no *.xml</source>
        <translation>в папке нет *.xml</translation>
    </message>
    <message>
        <source>the name of the file is no text</source>
        <translation>имя файла — не текст</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <source>an exchange file could not be written whole, or was held back, and the old one is kept; or the outcome could not be told</source>
        <translation>файл обмена не удалось записать целиком, или новый файл отклонён, и прежний оставлен; или не удалось сообщить об итоге</translation>
    </message>
    <message>
        <source>the destination %1 is another source</source>
        <translation>файл назначения %1 — другой источник</translation>
    </message>
    <message>
        <source>the old exchange file can&apos;t be written</source>
        <translation>прежний файл обмена нельзя записать</translation>
    </message>
    <message>
        <source>its links lead to each other</source>
        <translation>его ссылки ведут друг на друга</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>слишком длинное имя</translation>
    </message>
    <message>
        <source>there is no such device</source>
        <translation>такого устройства нет</translation>
    </message>
    <message>
        <source>something else has that name</source>
        <translation>это имя занято</translation>
    </message>
    <message>
        <source>it is standard input, which is not read</source>
        <translation>это стандартный ввод, он не читается</translation>
    </message>
    <message>
        <source>it is not written, since something would be left out</source>
        <translation>файл не записан: в него попало бы не всё</translation>
    </message>
    <message>
        <source>Begin rows with &amp;##</source>
        <translation>Начинать строки с &amp;##</translation>
    </message>
    <message>
        <source>With &amp;descriptions</source>
        <translation>С &amp;описаниями</translation>
    </message>
    <message>
        <source>Descriptions are &amp;HTML</source>
        <translation>Описания &amp;в HTML</translation>
    </message>
    <message>
        <source>&amp;Extended offers of shop feeds</source>
        <translation>&amp;Расширенные предложения магазинов</translation>
    </message>
    <message>
        <source>&amp;Multiply the prices of offers by</source>
        <translation>&amp;Умножать цены предложений на</translation>
    </message>
    <message>
        <source>How to copy goods</source>
        <translation>Как копировать товары</translation>
    </message>
    <message>
        <source>Factor of prices</source>
        <translation>Множитель цен</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Kinds of findings</source>
        <translation>Виды замечаний</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Замечания</translation>
    </message>
    <message>
        <source>Goods</source>
        <translation>Товары</translation>
    </message>
    <message>
        <source>Filter: words of any column</source>
        <translation>Фильтр: слова из любых столбцов</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Группы</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>No description</source>
        <translation>Описания нет</translation>
    </message>
    <message>
        <source>All goods</source>
        <translation>Все товары</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Заказы</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Обзор</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход работы</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Открыть...</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Открыть &amp;недавний</translation>
    </message>
    <message>
        <source>Read &amp;again</source>
        <translation>Прочитать &amp;заново</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>О&amp;становить</translation>
    </message>
    <message>
        <source>Documents are &amp;purchases</source>
        <translation>Документы — за&amp;купки</translation>
    </message>
    <message>
        <source>&amp;Convert...</source>
        <translation>Прео&amp;бразовать...</translation>
    </message>
    <message>
        <source>Save &amp;findings as a table...</source>
        <translation>Сохранить замечания &amp;таблицей...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>&amp;Chosen goods</source>
        <translation>&amp;Выбранные товары</translation>
    </message>
    <message>
        <source>&amp;All goods</source>
        <translation>В&amp;се товары</translation>
    </message>
    <message>
        <source>&amp;How to copy goods...</source>
        <translation>&amp;Как копировать товары...</translation>
    </message>
    <message>
        <source>&amp;Lines of the document</source>
        <translation>Строки &amp;документа</translation>
    </message>
    <message>
        <source>Lines with &amp;goods</source>
        <translation>Строки с &amp;товарами</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Фильтр</translation>
    </message>
    <message>
        <source>&amp;Sort by the current column</source>
        <translation>&amp;Упорядочить по текущему столбцу</translation>
    </message>
    <message>
        <source>&amp;Columns of goods</source>
        <translation>&amp;Столбцы товаров</translation>
    </message>
    <message>
        <source>Open a source</source>
        <translation>Открыть источник</translation>
    </message>
    <message>
        <source>Sources (*.xml *.yml)</source>
        <translation>Источники (*.xml *.yml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>The reading was stopped.</source>
        <translation>Чтение остановлено.</translation>
    </message>
    <message>
        <source>The conversion was stopped; the destination is as it was.</source>
        <translation>Преобразование остановлено; файл назначения остался прежним.</translation>
    </message>
    <message>
        <source>&amp;Read again</source>
        <translation>Прочитать &amp;заново</translation>
    </message>
    <message>
        <source>Save findings as a table</source>
        <translation>Сохранить замечания таблицей</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Таблицы (*.csv)</translation>
    </message>
    <message>
        <source>The findings are in %1.</source>
        <translation>Замечания сохранены в %1.</translation>
    </message>
    <message>
        <source>The findings could not be saved: %1</source>
        <translation>Замечания не удалось сохранить: %1</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>Преобразовать в</translation>
    </message>
    <message>
        <source>Exchange files (*.txt)</source>
        <translation>Файлы обмена (*.txt)</translation>
    </message>
    <message>
        <source>%1 was not written.</source>
        <translation>Файл %1 не записан.</translation>
    </message>
    <message>
        <source>%1 was created: %2.</source>
        <translation>Создан файл %1: %2.</translation>
    </message>
    <message>
        <source>%1 was replaced: %2.</source>
        <translation>Заменён файл %1: %2.</translation>
    </message>
    <message>
        <source>%1 has it all already: %2.</source>
        <translation>В файле %1 всё это уже есть: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) are on the clipboard.</source>
        <translation>
            <numerusform>%n строка в буфере обмена.</numerusform>
            <numerusform>%n строки в буфере обмена.</numerusform>
            <numerusform>%n строк в буфере обмена.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to copy.</source>
        <translation>Копировать нечего.</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>читается %1</translation>
    </message>
    <message>
        <source>converting</source>
        <translation>идёт преобразование</translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <translation>
            <numerusform>показан %n</numerusform>
            <numerusform>показаны %n</numerusform>
            <numerusform>показано %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Open a source, or drop one here</source>
        <translation>Откройте источник или перетащите его сюда</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Документы</translation>
    </message>
    <message>
        <source>Lines of the document</source>
        <translation>Строки документа</translation>
    </message>
    <message>
        <source>Partner</source>
        <translation>Контрагент</translation>
    </message>
    <message>
        <source>Requisites</source>
        <translation>Реквизиты</translation>
    </message>
    <message>
        <source>No requisites</source>
        <translation>Реквизитов нет</translation>
    </message>
    <message>
        <source>Not exported: %1</source>
        <translation>Не выгружается: %1</translation>
    </message>
    <message>
        <source>other groups</source>
        <translation>другие группы</translation>
    </message>
    <message>
        <source>in no group</source>
        <translation>вне групп</translation>
    </message>
    <message>
        <source>Goods by group</source>
        <translation>Товары по группам</translation>
    </message>
    <message>
        <source>%1 and more</source>
        <translation>от %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>от %1 до %2</translation>
    </message>
    <message>
        <source>without a price</source>
        <translation>без цены</translation>
    </message>
    <message>
        <source>Goods by price</source>
        <translation>Товары по ценам</translation>
    </message>
    <message>
        <source>Findings by level</source>
        <translation>Замечания по уровням</translation>
    </message>
    <message>
        <source>There is nothing to show</source>
        <translation>Показывать нечего</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>Article</source>
        <translation>Артикул</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Наименование</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Единица</translation>
    </message>
    <message>
        <source>Barcode</source>
        <translation>Штрихкод</translation>
    </message>
    <message>
        <source>Prices</source>
        <translation>Цены</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Производитель</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Страна</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Вес</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Примечание</translation>
    </message>
    <message>
        <source>sold out</source>
        <translation>распродан</translation>
    </message>
    <message>
        <source>it stands behind a document without lines, at which the export ends</source>
        <translation>документ стоит после документа без строк, на котором выгрузка заканчивается</translation>
    </message>
    <message>
        <source>it has no code</source>
        <translation>нет кода</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Номер</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Роль</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Комментарий</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Статус</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Сумма</translation>
    </message>
    <message>
        <source>Not exported</source>
        <translation>Не выгружается</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Количество</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Цена</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Полное наименование</translation>
    </message>
    <message>
        <source>INN</source>
        <translation>ИНН</translation>
    </message>
    <message>
        <source>KPP</source>
        <translation>КПП</translation>
    </message>
    <message>
        <source>OKPO</source>
        <translation>ОКПО</translation>
    </message>
    <message>
        <source>Legal address</source>
        <translation>Юридический адрес</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Телефон</translation>
    </message>
    <message>
        <source>Second phone</source>
        <translation>Второй телефон</translation>
    </message>
    <message>
        <source>Third phone</source>
        <translation>Третий телефон</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Электронная почта</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Реквизит</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Уровень</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Количество</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Замечание</translation>
    </message>
    <message>
        <source>All findings</source>
        <translation>Все замечания</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>строка %1, столбец %2</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Место</translation>
    </message>
    <message>
        <source>Good or order</source>
        <translation>Товар или заказ</translation>
    </message>
    <message>
        <source>No table shows what this is about.</source>
        <translation>Того, о чём это замечание, нет ни в одной таблице.</translation>
    </message>
    <message>
        <source>&amp;Hide the current column</source>
        <translation>&amp;Скрыть текущий столбец</translation>
    </message>
    <message>
        <source>Show &amp;all columns</source>
        <translation>Показать &amp;все столбцы</translation>
    </message>
    <message>
        <source>Move the current column to the &amp;left</source>
        <translation>Сдвинуть текущий столбец в&amp;лево</translation>
    </message>
    <message>
        <source>Move the current column to the &amp;right</source>
        <translation>Сдвинуть текущий столбец в&amp;право</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Вырезать</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Копировать &amp;адрес ссылки</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Вст&amp;авить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Выделить всё</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Шаг в&amp;верх</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Шаг в&amp;низ</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>Прокрутить сюда</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>В начало</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>В конец</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>К левому краю</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>К правому краю</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>На страницу вверх</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>На страницу вниз</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>На страницу влево</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>На страницу вправо</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Прокрутить вверх</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Прокрутить вниз</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Прокрутить влево</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Прокрутить вправо</translation>
    </message>
    <message>
        <source>Another program has the clipboard open.</source>
        <translation>Буфер обмена открыт другой программой.</translation>
    </message>
    <message>
        <source>Memory ran out. Nothing more can be copied of the source until it is read again.</source>
        <translation>Память кончилась. Скопировать из источника больше ничего нельзя, пока он не прочитан снова.</translation>
    </message>
    <message>
        <source>In the &amp;order of the source</source>
        <translation>В порядке &amp;источника</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>не читается</translation>
    </message>
    <message>
        <source>no well-formed XML</source>
        <translation>не является правильным XML</translation>
    </message>
    <message>
        <source>wrong encoding</source>
        <translation>не та кодировка</translation>
    </message>
    <message>
        <source>beyond a limit</source>
        <translation>сверх ограничения</translation>
    </message>
    <message>
        <source>no trade data</source>
        <translation>не торговые данные</translation>
    </message>
    <message>
        <source>nothing to export</source>
        <translation>нечего выгружать</translation>
    </message>
    <message>
        <source>changed while it was read</source>
        <translation>изменился, пока его читали</translation>
    </message>
    <message>
        <source>no identifier</source>
        <translation>нет идентификатора</translation>
    </message>
    <message>
        <source>document without a partner</source>
        <translation>документ без контрагента</translation>
    </message>
    <message>
        <source>document without a number</source>
        <translation>документ без номера</translation>
    </message>
    <message>
        <source>document without lines</source>
        <translation>документ без строк</translation>
    </message>
    <message>
        <source>name with a prefix</source>
        <translation>имя с префиксом</translation>
    </message>
    <message>
        <source>where no export looks for it</source>
        <translation>стоит там, где выгрузка его не ищет</translation>
    </message>
    <message>
        <source>partner of another role</source>
        <translation>контрагент с другой ролью</translation>
    </message>
    <message>
        <source>unknown group</source>
        <translation>неизвестная группа</translation>
    </message>
    <message>
        <source>groups that lead back to themselves</source>
        <translation>группы, замкнутые в кольцо</translation>
    </message>
    <message>
        <source>no group</source>
        <translation>нет группы</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>нет наименования</translation>
    </message>
    <message>
        <source>no price</source>
        <translation>нет цены</translation>
    </message>
    <message>
        <source>price that is no number</source>
        <translation>цена — не число</translation>
    </message>
    <message>
        <source>too many prices</source>
        <translation>слишком много цен</translation>
    </message>
    <message>
        <source>repeated code</source>
        <translation>повторный код</translation>
    </message>
    <message>
        <source>empty code</source>
        <translation>пустой код</translation>
    </message>
    <message>
        <source>line break</source>
        <translation>перевод строки</translation>
    </message>
    <message>
        <source>line like one of the exchange file</source>
        <translation>строка, похожая на строку файла обмена</translation>
    </message>
    <message>
        <source>broken or control characters</source>
        <translation>испорченные или управляющие знаки</translation>
    </message>
    <message>
        <source>%1 has changed on the disk.</source>
        <translation>%1: файл на диске изменился.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>С&amp;правка</translation>
    </message>
    <message>
        <source>&amp;About xml2ryk</source>
        <translation>&amp;О программе xml2ryk</translation>
    </message>
    <message>
        <source>About xml2ryk</source>
        <translation>О программе xml2ryk</translation>
    </message>
    <message>
        <source>xml2ryk %1 shows, checks and converts trade data.

Its licence is MIT. It is made with Qt %2, whose licence is the LGPL, version 3.</source>
        <translation>xml2ryk %1 показывает, проверяет и преобразует торговые данные.

Лицензия программы — MIT. Она сделана с Qt %2, лицензия которого — LGPL версии 3.</translation>
    </message>
    <message>
        <source>Close &amp;message</source>
        <translation>Закрыть соо&amp;бщение</translation>
    </message>
    <message>
        <source>%1 is no longer on the disk.</source>
        <translation>%1: файла больше нет на диске.</translation>
    </message>
</context>
</TS>
